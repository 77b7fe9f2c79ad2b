#include <knav/CNavCommDlgBuddy.h>

BEGIN_MESSAGE_MAP(CNavCommDlgBuddy, CWnd)
ON_WM_SIZE()
ON_WM_MOVE()
END_MESSAGE_MAP()

void CNavCommDlgBuddy::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    moveBuddy();
}

void CNavCommDlgBuddy::OnMove(int x, int y) {
    CWnd::OnMove(x, y);
    moveBuddy();
}

void CNavCommDlgBuddy::moveBuddy() {
    if (SafeHwnd(m_buddy) == nullptr) {
        return;
    }
    RECT place{};
    GetWindowRect(&place);
    MapWindowPoints(nullptr, ::GetParent(*m_buddy), reinterpret_cast<POINT*>(&place), 2);
    m_buddy->SetWindowPos(nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                          SWP_NOZORDER | SWP_NOACTIVATE);
}
