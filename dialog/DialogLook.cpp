#include "dialog/DialogLook.h"

#include "controls/Dpi.h"
#include "dialog/Messages.h"
#include "dialog/ResourceModule.h"
#include "resources/ids.h"

namespace knav {
namespace {

struct ButtonLook {
    CNavBitmapButton* button;
    UINT picture;
    UINT tip;
};

}  // namespace

void givePictures(DialogControls& controls) {
    const ButtonLook looks[] = {
        {&controls.m_backButton, IDB_KNAV_BACK, IDS_KNAV_TIP_BACK},
        {&controls.m_upButton, IDB_KNAV_UP, IDS_KNAV_TIP_UP},
        {&controls.m_webButton, IDB_KNAV_WEB, IDS_KNAV_TIP_WEB},
        {&controls.m_refreshButton, IDB_KNAV_REFRESH, IDS_KNAV_TIP_REFRESH},
        {&controls.m_deleteButton, IDB_KNAV_DELETE, IDS_KNAV_TIP_DELETE},
        {&controls.m_newFolderButton, IDB_KNAV_NEW_FOLDER, IDS_KNAV_TIP_NEW_FOLDER},
        {&controls.m_toolsButton, IDB_KNAV_TOOLS, IDS_KNAV_TIP_TOOLS},
        {&controls.m_viewsButton, IDB_KNAV_VIEWS, IDS_KNAV_TIP_VIEWS},
    };
    controls.m_backButton.SetPictureDirectional(1);
    for (const ButtonLook& look : looks) {
        look.button->SetPictureId(look.picture, ownResources());
        look.button->SetTipText(messageText(look.tip));
    }
}

void keepNamesLeftToRight(HWND combo) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (!combo || !GetComboBoxInfo(combo, &info)) {
        return;
    }
    // The text of the list of file types below begins this far from the field's edge.
    const int margin = scaled(1, dpiOf(info.hwndItem));
    SendMessageW(info.hwndItem, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(margin, margin));
    constexpr LONG_PTR fromTheRight = WS_EX_LAYOUTRTL | WS_EX_RTLREADING | WS_EX_RIGHT;
    const LONG_PTR style = GetWindowLongPtrW(info.hwndItem, GWL_EXSTYLE);
    if ((style & fromTheRight) != 0) {
        SetWindowLongPtrW(info.hwndItem, GWL_EXSTYLE, style & ~fromTheRight);
        InvalidateRect(info.hwndItem, nullptr, TRUE);
    }
}

}  // namespace knav
