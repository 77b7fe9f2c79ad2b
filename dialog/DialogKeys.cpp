#include "dialog/DialogKeys.h"

#include <algorithm>

#include "dialog/ResourceModule.h"
#include "resources/ids.h"
#include "shell/Guard.h"

namespace knav {

void DialogKeys::begin() {
    m_enterHeldSinceStart = true;
    if (!m_table) {
        m_table = LoadAcceleratorsW(ownResources(), MAKEINTRESOURCEW(IDR_KNAV_KEYS));
    }
}

bool DialogKeys::translate(MSG& message, HWND dialog) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) {
        return false;
    }
    return swallowHeldEnter(message) || keepForLabelEdit(message) || goUpFromView(message, dialog) ||
           translateForView(message) ||
           (m_table && !isForControl(message) && TranslateAcceleratorW(dialog, m_table, &message));
}

/// The Enter that opened this dialog may still be held down, and repeats; it was not meant for this dialog.
bool DialogKeys::swallowHeldEnter(const MSG& message) {
    const bool keyDown = message.message == WM_KEYDOWN && message.wParam == VK_RETURN;
    const bool repeated = (message.lParam & (1 << 30)) != 0;
    if (m_enterHeldSinceStart && keyDown && repeated) {
        return true;
    }
    m_enterHeldSinceStart = m_enterHeldSinceStart && !keyDown && message.message != WM_KEYUP;
    return false;
}

/// Enter and Escape end the renaming of an item; they are not for the dialog then.
bool DialogKeys::keepForLabelEdit(MSG& message) const {
    const HWND list = m_controls.m_listInUse->GetSafeHwnd();
    const HWND edit = list ? ListView_GetEditControl(list) : nullptr;
    if (!edit || message.hwnd != edit) {
        return false;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return true;
}

bool DialogKeys::goUpFromView(const MSG& message, HWND dialog) const {
    const bool isBackspace = message.message == WM_KEYDOWN && message.wParam == VK_BACK;
    if (!isBackspace || message.hwnd != m_controls.m_listInUse->GetSafeHwnd()) {
        return false;
    }
    SendMessageW(dialog, WM_COMMAND, IDM_KNAV_UP, 0);
    return true;
}

bool DialogKeys::translateForView(MSG& message) {
    IShellView* view = m_controls.m_browser.GetCurrentShellView();
    if (!view || !m_controls.m_viewWindow.GetSafeHwnd() || !m_controls.m_viewWindow.IsChild(message.hwnd)) {
        return false;
    }
    return guarded([&] { return view->TranslateAccelerator(&message); }) == S_OK;
}

/// While a list is dropped down, the keys are for it: Alt+Up closes it, F4 too. F4 on a button with a menu opens that.
bool DialogKeys::isForControl(const MSG& message) const {
    const HWND at = message.message == WM_KEYDOWN && message.wParam == VK_F4 ? message.hwnd : nullptr;
    if (at && (at == m_controls.m_viewsButton.m_hWnd || at == m_controls.m_toolsButton.m_hWnd ||
               (at == m_controls.m_okButton.m_hWnd && m_controls.m_okButton.GetMenuExists()))) {
        return true;
    }
    const CComboBox* const combos[] = {&m_controls.m_lookIn, &m_controls.m_fileName, &m_controls.m_fileType};
    return std::ranges::any_of(combos,
                               [](const CComboBox* combo) { return combo->m_hWnd && combo->GetDroppedState(); });
}

}  // namespace knav
