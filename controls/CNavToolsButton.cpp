#include <knav/CNavToolsButton.h>

#include "controls/ButtonRules.h"
#include "controls/DropMenu.h"

void CNavToolsButton::SetToolButton(int toolButton) {
    m_toolButton = toolButton;
    Invalidate(FALSE);
}

int CNavToolsButton::WantsKey(WPARAM key, int alt) const {
    return CNavBitmapButton::WantsKey(key, alt) || (m_toolButton && knav::isDropKey(key, alt != 0, true));
}

int CNavToolsButton::DropMenu(int byKeyboard) {
    if (m_dropped || !IsWindowEnabled())
        return 0;
    HideTip();
    m_dropped = 1;
    Invalidate(FALSE);
    UpdateWindow();
    const bool shown = knav::dropButtonMenu(m_hWnd, m_menuSource, byKeyboard != 0);
    m_dropped = 0;
    Invalidate(FALSE);
    return shown;
}

LRESULT CNavToolsButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!m_toolButton)
        return CNavBitmapButton::WindowProc(message, wParam, lParam);
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            DropMenu(0);
            return 0;
        case BM_CLICK:
            DropMenu(1);
            return 0;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (wParam == VK_SPACE || knav::isDropKey(wParam, message == WM_SYSKEYDOWN, true)) {
                DropMenu(1);
                return 0;
            }
            break;
        default:
            break;
    }
    return CNavBitmapButton::WindowProc(message, wParam, lParam);
}
