#include "controls/DropMenu.h"

#include <knav/CNavButtonMenuSource.h>
#include <platform/CMenu.h>

namespace knav {
namespace {

bool isMirrored(HWND window) {
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
}

void trackBelow(HWND button, HMENU popup) {
    TPMPARAMS keepClear{};
    keepClear.cbSize = sizeof keepClear;
    GetWindowRect(button, &keepClear.rcExclude);
    const bool mirrored = isMirrored(button);
    const UINT flags = TPM_VERTICAL | (mirrored ? TPM_RIGHTALIGN | TPM_LAYOUTRTL : static_cast<UINT>(TPM_LEFTALIGN));
    TrackPopupMenuEx(popup, flags, mirrored ? keepClear.rcExclude.right : keepClear.rcExclude.left,
                     keepClear.rcExclude.bottom, GetParent(button), &keepClear);
}

void eatClosingClick(HWND button) {
    MSG click{};
    PeekMessageW(&click, button, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE);
}

}  // namespace

bool dropButtonMenu(HWND button, CNavButtonMenuSource* source, bool byKeyboard) {
    if (!source)
        return false;
    CMenu menu;
    if (!source->PrepareButtonMenu(static_cast<UINT>(GetDlgCtrlID(button)), menu))
        return false;
    HMENU popup = GetSubMenu(menu.m_hMenu, 0);
    if (!popup || GetMenuItemCount(popup) <= 0)
        return false;
    if (byKeyboard)  // the menu's own loop finds this key and moves to the first entry
        PostMessageW(GetParent(button), WM_KEYDOWN, VK_DOWN, 0);
    trackBelow(button, popup);
    eatClosingClick(button);
    return true;
}

}  // namespace knav
