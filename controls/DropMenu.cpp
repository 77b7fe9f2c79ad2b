#include "controls/DropMenu.h"

#include <knav/CNavButtonMenuSource.h>
#include <platform/CMenu.h>

namespace knav {
namespace {

bool isMirrored(HWND window) {
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
}

bool isInFarHalf(HWND button, const RECT& at, bool mirrored) {
    RECT dialog{};
    GetWindowRect(GetParent(button), &dialog);
    const bool right = at.left + at.right > dialog.left + dialog.right;
    return right != mirrored;
}

// Under the near edge of the button; in the far half of the dialog under the far edge, so that the menu stays inside.
// For a mirrored menu the system takes the alignments the other way round: "left" is the near edge.
void trackBelow(HWND button, HMENU popup) {
    TPMPARAMS keepClear{};
    keepClear.cbSize = sizeof keepClear;
    GetWindowRect(button, &keepClear.rcExclude);
    const RECT& at = keepClear.rcExclude;
    const bool mirrored = isMirrored(button);
    const bool alignFar = isInFarHalf(button, at, mirrored);
    const UINT flags =
        TPM_VERTICAL | (alignFar ? TPM_RIGHTALIGN : static_cast<UINT>(TPM_LEFTALIGN)) | (mirrored ? TPM_LAYOUTRTL : 0u);
    TrackPopupMenuEx(popup, flags, alignFar != mirrored ? at.right : at.left, at.bottom, GetParent(button), &keepClear);
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
