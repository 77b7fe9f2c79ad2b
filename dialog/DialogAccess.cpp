#include "dialog/DialogAccess.h"

#include <oleacc.h>

#include "controls/Accessible.h"
#include "resources/ids.h"

namespace knav {

void nameControls(DialogControls& controls, HWND dialog) {
    struct Row {
        UINT id;
        long role;
        UINT label;
    };
    constexpr Row rows[] = {
        {IDC_KNAV_PLACES, ROLE_SYSTEM_LIST, IDC_KNAV_PLACES_LABEL},
        {IDC_KNAV_LOOK_IN, ROLE_SYSTEM_COMBOBOX, IDC_KNAV_LOOK_IN_LABEL},
        {IDC_KNAV_FILE_NAME, ROLE_SYSTEM_COMBOBOX, IDC_KNAV_FILE_NAME_LABEL},
        {IDC_KNAV_FILE_TYPE, ROLE_SYSTEM_COMBOBOX, IDC_KNAV_FILE_TYPE_LABEL},
    };
    const auto windowOf = [dialog](UINT id) { return GetDlgItem(dialog, static_cast<int>(id)); };
    for (const Row& row : rows) {
        makeAccessible(windowOf(row.id), {row.role, windowOf(row.label), {}});
    }
    // Not every system tells what a plain button is.
    const bool drops = controls.m_okButton.GetMenuExists() != 0;
    makeAccessible(windowOf(IDOK), {drops ? ROLE_SYSTEM_SPLITBUTTON : ROLE_SYSTEM_PUSHBUTTON, nullptr, {}});
    makeAccessible(windowOf(IDCANCEL), {ROLE_SYSTEM_PUSHBUTTON, nullptr, {}});
    for (CNavBitmapButton* button : {&controls.m_backButton, &controls.m_upButton, &controls.m_webButton,
                                     &controls.m_refreshButton, &controls.m_deleteButton, &controls.m_newFolderButton,
                                     static_cast<CNavBitmapButton*>(&controls.m_toolsButton),
                                     static_cast<CNavBitmapButton*>(&controls.m_viewsButton)}) {
        const bool isMenu = button == &controls.m_toolsButton || button == &controls.m_viewsButton;
        makeAccessible(button->GetSafeHwnd(), {isMenu ? ROLE_SYSTEM_BUTTONMENU : ROLE_SYSTEM_PUSHBUTTON, nullptr,
                                               [button] { return std::wstring(button->GetTipText()); }});
    }
}

void nameView(HWND list, HWND dialog) {
    wchar_t name[MAX_PATH] = L"";
    if (list && GetDlgItemTextW(dialog, IDC_KNAV_VIEW_LABEL, name, MAX_PATH) > 0) {
        SetWindowTextW(list, plainName(name).c_str());
    }
}

}  // namespace knav
