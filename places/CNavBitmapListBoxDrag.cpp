// The mouse: pointing at rows, choosing one, dragging one to a new place.
#include <knav/CNavBitmapListBox.h>

#include <platform/GdiOwners.h>

#include "controls/GdiPlus.h"
#include "places/PlaceDrag.h"
#include "places/PlacesRules.h"

using namespace knav;

namespace {

constexpr UINT_PTR kHighlightTimer = 9029;
constexpr UINT_PTR kPositionTimer = 9030;
constexpr UINT kFirstHighlightPeriod = 100;
constexpr UINT kHighlightPeriod = 50;
constexpr UINT kScrollPeriod = 120;

enum DragResult { Following = -2, GivenUp = -1, Clicked = 0, Dragged = 1 };

POINT pointOf(LPARAM position) {
    return {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
}

bool isMouse(UINT message) {
    return message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
}

bool isKey(UINT message) {
    return message >= WM_KEYFIRST && message <= WM_KEYLAST;
}

}  // namespace

LRESULT CNavBitmapListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            press(pointOf(lParam));
            return 0;
        case WM_MOUSEMOVE:
            if (!m_drag)
                SetItemPointedAt(ItemFromPoint(pointOf(lParam)));
            break;
        case WM_MOUSELEAVE:
            SetItemPointedAt(-1);
            break;
        case WM_TIMER:
            OnTimer(wParam);
            break;
        case WM_ERASEBKGND:
            eraseBelowRows(reinterpret_cast<HDC>(wParam));
            return 1;
        case WM_SYSCOLORCHANGE:
            UpdateTextColor();
            break;
        default:
            break;
    }
    return CZoUiListBox::WindowProc(message, wParam, lParam);
}

// --- pointing --------------------------------------------------------------------------------------------------

void CNavBitmapListBox::SetItemPointedAt(int index) {
    if (index == m_pointedAt)
        return;
    invalidateRow(m_pointedAt);
    m_pointedAt = index;
    invalidateRow(m_pointedAt);
    if (index < 0) {
        StopHighlightTimer();
        return;
    }
    StartHighlightTimer(kFirstHighlightPeriod);
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, m_hWnd, 0};
    TrackMouseEvent(&track);
}

void CNavBitmapListBox::StartHighlightTimer(UINT period) {
    SetTimer(kHighlightTimer, period);
}

void CNavBitmapListBox::StopHighlightTimer() {
    KillTimer(kHighlightTimer);
}

void CNavBitmapListBox::StartPositionTimer(UINT period) {
    SetTimer(kPositionTimer, period);
}

void CNavBitmapListBox::StopPositionTimer() {
    KillTimer(kPositionTimer);
}

void CNavBitmapListBox::OnTimer(UINT_PTR timer) {
    if (timer != kHighlightTimer || ::GetFocus() == m_hWnd)
        return;
    StopHighlightTimer();
    POINT pointer{};
    GetCursorPos(&pointer);
    const bool overList = WindowFromPoint(pointer) == m_hWnd;
    ScreenToClient(&pointer);
    if (overList && ItemFromPoint(pointer) >= 0)
        StartHighlightTimer(kHighlightPeriod);
    else
        SetItemPointedAt(-1);
}

// --- pressing and dragging -------------------------------------------------------------------------------------

void CNavBitmapListBox::NotifyChosen() {
    ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), LBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(m_hWnd));
}

void CNavBitmapListBox::press(POINT point) {
    SetFocus();
    if (!DragInit(point))
        return;
    HWND window = m_hWnd;
    const int row = m_drag->row;
    const int result = DragLoop(point);
    if (result != Clicked || !IsWindow(window))
        return;
    SetCurSel(row);
    NotifyChosen();
}

int CNavBitmapListBox::DragInit(POINT point) {
    const int row = ItemFromPoint(point);
    if (m_drag || row < 0)
        return 0;
    m_drag = std::make_unique<PlaceDrag>();
    m_drag->row = row;
    m_drag->press = m_drag->last = point;
    m_drag->count = GetCount();
    m_drag->visible = GetVisibleItemCount();
    GetWindowRect(&m_drag->screen);
    m_pressedRow = row;
    invalidateRow(row);
    UpdateWindow();
    return 1;
}

int CNavBitmapListBox::DragLoop(POINT) {
    HWND window = m_hWnd;
    SetCapture();
    int result = Following;
    while (result == Following) {
        MSG message{};
        const bool found = PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0;
        if (!IsWindow(window))
            return GivenUp;
        if (found)
            result = dragMessage(message);
        else if (::GetCapture() != window)
            result = GivenUp;
        else
            WaitMessage();
        if (!IsWindow(window))
            return GivenUp;
    }
    const int target = m_drag->indicator;
    EraseIndicator();
    StopPositionTimer();
    const std::unique_ptr<PlaceDrag> drag = std::move(m_drag);
    m_pressedRow = -1;
    invalidateRow(drag->row);
    if (::GetCapture() == window)
        ReleaseCapture();
    if (result == Dragged && drag->moved)
        MoveItemFromIndex(drag->row, indexAfterRemoval(drag->row, target));
    return result;
}

int CNavBitmapListBox::dragMessage(const MSG& message) {
    if (message.message == WM_QUIT) {
        PostQuitMessage(static_cast<int>(message.wParam));
        return GivenUp;
    }
    if (isKey(message.message))
        return message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE ? GivenUp : Following;
    if (message.message == WM_TIMER) {
        if (message.hwnd == m_hWnd && message.wParam == kPositionTimer)
            dragTo(m_drag->last);
        return Following;
    }
    if (isMouse(message.message)) {
        if (message.message == WM_MOUSEMOVE)
            dragTo(pointOf(message.lParam));
        return message.message != WM_LBUTTONUP ? Following : m_drag->dragging ? Dragged : Clicked;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    return Following;
}

void CNavBitmapListBox::dragTo(POINT point) {
    m_drag->last = point;
    const int gap = rowMeasures(GetDpi()).gap;
    if (!m_drag->dragging && std::abs(point.x - m_drag->press.x) <= gap && std::abs(point.y - m_drag->press.y) <= gap)
        return;
    m_drag->dragging = true;
    scrollTowards(point);
    const int index = insertionIndex(point.y, m_rowHeight, GetTopIndex(), m_drag->count);
    if (index == m_drag->indicator)
        return;
    EraseIndicator();
    DrawIndicator(index);
    m_drag->moved = indexAfterRemoval(m_drag->row, index) != m_drag->row;
}

void CNavBitmapListBox::scrollTowards(POINT point) {
    RECT area{};
    GetClientRect(&area);
    const int top = GetTopIndex();
    int wanted = top;
    if (point.y < 0 && top > 0)
        wanted = top - 1;
    else if (point.y >= area.bottom && top + m_drag->visible < m_drag->count)
        wanted = top + 1;
    if (wanted == top) {
        StopPositionTimer();
        return;
    }
    EraseIndicator();
    SetTopIndex(wanted);
    StartPositionTimer(kScrollPeriod);
}

// --- the indicator ---------------------------------------------------------------------------------------------

RECT CNavBitmapListBox::indicatorRect(int index) const {
    const int thick = std::max(rowMeasures(GetDpi()).gap / 2, 2);
    RECT row{};
    const bool behindLast = index >= GetCount();
    if (GetItemRect(behindLast ? GetCount() - 1 : index, &row) == LB_ERR)
        return {};
    const LONG edge = behindLast ? row.bottom : row.top;
    const LONG top = std::max<LONG>(edge - thick / 2, 0);
    return {row.left, top, row.right, top + thick};
}

void CNavBitmapListBox::DrawInd(HDC dc, int index) {
    const RECT line = indicatorRect(index);
    FillRect(dc, &line, GetSysColorBrush(COLOR_HIGHLIGHT));
}

void CNavBitmapListBox::DrawIndicator(int index) {
    if (!m_drag)
        return;
    UpdateWindow();
    m_drag->indicator = index;
    const zoui::WindowDC dc(m_hWnd);
    DrawInd(dc, index);
}

void CNavBitmapListBox::EraseIndicator() {
    if (!m_drag || m_drag->indicator < 0)
        return;
    const RECT line = indicatorRect(std::exchange(m_drag->indicator, -1));
    InvalidateRect(&line);
    UpdateWindow();
}
