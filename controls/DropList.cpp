#include "controls/DropList.h"

namespace knav {

BEGIN_MESSAGE_MAP(DropList, CWnd)
ON_WM_WINDOWPOSCHANGING()
END_MESSAGE_MAP()

void DropList::begin(HWND combo, HWND list) {
    m_combo = combo;
    if (m_hWnd != list) {
        UnsubclassWindow();
        SubclassWindow(list);
    }
}

void DropList::OnWindowPosChanging(WINDOWPOS* place) {
    Default();
    const auto row = static_cast<int>(::SendMessageW(m_hWnd, LB_GETITEMHEIGHT, 0, 0));
    RECT window{};
    RECT client{};
    if ((place->flags & SWP_NOSIZE) != 0 || (::GetWindowLongPtrW(m_hWnd, GWL_STYLE) & LBS_NOINTEGRALHEIGHT) != 0 ||
        row <= 0 || !::GetWindowRect(m_hWnd, &window) || !::GetClientRect(m_hWnd, &client)) {
        return;
    }
    const int room = place->cy - static_cast<int>(window.bottom - window.top - client.bottom);
    if (room <= row) {
        return;
    }
    RECT combo{};
    const bool isAbove = (place->flags & SWP_NOMOVE) == 0 && ::GetWindowRect(m_combo, &combo) && place->y < combo.top;
    place->cy -= room % row;
    place->y += isAbove ? room % row : 0;
}

}  // namespace knav
