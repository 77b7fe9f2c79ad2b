#include "dialog/DialogLayout.h"

#include <algorithm>
#include <string_view>

#include "shell/TextRules.h"

namespace knav {
namespace {

// Client coordinates of a mirrored dialog run from the right; mapping both corners at once takes care of it.
RECT rectIn(HWND dialog, HWND control) {
    RECT at{};
    GetWindowRect(control, &at);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&at), 2);
    return at;
}

bool isOfClass(HWND window, std::wstring_view name) {
    wchar_t text[64] = L"";
    GetClassNameW(window, text, static_cast<int>(std::size(text)));
    return knav::equalNoCase(text, name);
}

bool isComboBox(HWND window) {
    return isOfClass(window, L"ComboBox");
}

int droppedHeight(HWND combo) {
    RECT dropped{};
    SendMessageW(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    return dropped.bottom - dropped.top;
}

// To size a combo box is to size its list as well: the height of both together. Where a system counts the field into
// the list already, the list has room for a row more.
int heightToSet(HWND combo) {
    const RECT field = rectIn(combo, combo);
    return droppedHeight(combo) + field.bottom - field.top;
}

// The room of a combo box in its row. The box itself is as high as its font or its pictures need, whatever its template
// says, and stands in the middle of this room.
RECT roomInRow(HWND dialog, HWND combo) {
    constexpr LONG kTemplateHeight = 12;
    RECT room = rectIn(dialog, combo);
    RECT wanted{0, 0, 0, kTemplateHeight};
    if (MapDialogRect(dialog, &wanted))
        room.bottom = room.top + wanted.bottom;
    return room;
}

// A combo box selects its whole text when it is resized; the user's selection is put back.
class KeptEditSelections {
public:
    explicit KeptEditSelections(std::span<const HWND> windows) {
        for (HWND window : windows) {
            if (isComboBox(window) && (GetWindowLongPtrW(window, GWL_STYLE) & 3) == CBS_DROPDOWN)
                m_kept.push_back({window, static_cast<DWORD>(SendMessageW(window, CB_GETEDITSEL, 0, 0))});
        }
    }
    ~KeptEditSelections() {
        for (const Kept& kept : m_kept)
            SendMessageW(kept.window, CB_SETEDITSEL, 0, static_cast<LPARAM>(kept.selection));
    }
    KeptEditSelections(const KeptEditSelections&) = delete;
    KeptEditSelections& operator=(const KeptEditSelections&) = delete;

private:
    struct Kept {
        HWND window;
        DWORD selection;
    };
    std::vector<Kept> m_kept;
};

HWND createGrip(HWND dialog) {
    const int width = GetSystemMetricsForDpi(SM_CXVSCROLL, GetDpiForWindow(dialog));
    const int height = GetSystemMetricsForDpi(SM_CYHSCROLL, GetDpiForWindow(dialog));
    HWND grip = CreateWindowExW(0, L"SCROLLBAR", nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SBS_SIZEGRIP, 0, 0,
                                width, height, dialog, nullptr, nullptr, nullptr);
    if (grip)
        SetWindowPos(grip, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return grip;
}

}  // namespace

void DialogLayout::capture(HWND dialog, std::span<const GrowRow> rows, UINT bodyId) {
    m_dialog = dialog;
    m_bodyId = bodyId;
    RECT window{};
    RECT client{};
    GetWindowRect(dialog, &window);
    GetClientRect(dialog, &client);
    m_frame = {window.right - window.left - client.right, window.bottom - window.top - client.bottom};

    std::optional<RECT> body;
    if (HWND control = GetDlgItem(dialog, static_cast<int>(bodyId)))
        body = rectIn(dialog, control);
    m_layout = Layout({client.right, client.bottom}, rows, bodyId, body);
    m_windows.clear();
    m_comboHeights.clear();
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const auto id = static_cast<UINT>(GetDlgCtrlID(child));
        const bool inRow = isComboBox(child) && std::ranges::find(rows, id, &GrowRow::id) != rows.end();
        m_layout.add(id, inRow ? roomInRow(dialog, child) : rectIn(dialog, child));
        m_windows.push_back(child);
        if (isComboBox(child))
            m_comboHeights[child] = heightToSet(child);
    }
    if (!m_grip && (GetWindowLongPtrW(dialog, GWL_STYLE) & WS_THICKFRAME))
        m_grip = createGrip(dialog);
    placeGrip(client.right, client.bottom);
}

SIZE DialogLayout::minTrack() const {
    const SIZE least = m_layout.leastSize();
    return m_dialog ? SIZE{least.cx + m_frame.cx, least.cy + m_frame.cy} : SIZE{};
}

void DialogLayout::fitScreen() const {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    RECT window{};
    if (!m_dialog || !GetMonitorInfoW(MonitorFromWindow(m_dialog, MONITOR_DEFAULTTONEAREST), &monitor) ||
        !GetWindowRect(m_dialog, &window))
        return;
    const RECT& room = monitor.rcWork;
    const LONG width = std::min(window.right - window.left, room.right - room.left);
    const LONG height = std::min(window.bottom - window.top, room.bottom - room.top);
    if (width < window.right - window.left || height < window.bottom - window.top)
        SetWindowPos(m_dialog, nullptr, std::clamp(window.left, room.left, room.right - width),
                     std::clamp(window.top, room.top, room.bottom - height), width, height,
                     SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogLayout::closeColumn(UINT id) {
    m_layout.closeColumn(id);
    layOutAgain();
}

void DialogLayout::closeGap(UINT id) {
    m_layout.closeGap(id);
    layOutAgain();
}

void DialogLayout::joinRows(UINT upper, UINT lower) {
    m_layout.joinRows(upper, lower);
    layOutAgain();
}

void DialogLayout::layOutAgain() {
    RECT client{};
    if (GetClientRect(m_dialog, &client))
        apply(client.right, client.bottom);
}

void DialogLayout::move(HDWP& moves, size_t index, SIZE client) const {
    HWND window = m_windows[index];
    if (!moves || !IsWindow(window))
        return;
    RECT to = m_layout.rectOf(index, client);
    const RECT from = rectIn(m_dialog, window);
    const auto combo = m_comboHeights.find(window);
    if (combo != m_comboHeights.end()) {
        const LONG high = from.bottom - from.top;
        to.top += (to.bottom - to.top - high) / 2;
        to.bottom = to.top + high;
    }
    if (EqualRect(&from, &to))
        return;
    const int height = combo == m_comboHeights.end() ? to.bottom - to.top : combo->second;
    moves = DeferWindowPos(moves, window, nullptr, to.left, to.top, to.right - to.left, height,
                           SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void DialogLayout::apply(int cx, int cy) {
    if (!m_dialog || cx <= 0 || cy <= 0)  // minimised
        return;
    const KeptEditSelections kept(m_windows);
    HDWP moves = BeginDeferWindowPos(static_cast<int>(m_windows.size()));
    for (size_t i = 0; i < m_windows.size(); ++i)
        move(moves, i, {cx, cy});
    if (moves)
        EndDeferWindowPos(moves);
    placeGrip(cx, cy);
}

void DialogLayout::placeGrip(int cx, int cy) const {
    if (!m_grip)
        return;
    RECT at = rectIn(m_dialog, m_grip);
    SetWindowPos(m_grip, nullptr, cx - (at.right - at.left), cy - (at.bottom - at.top), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | (IsZoomed(m_dialog) ? SWP_HIDEWINDOW : SWP_SHOWWINDOW));
}

RECT DialogLayout::bodyRect() const {
    HWND body = m_dialog ? GetDlgItem(m_dialog, static_cast<int>(m_bodyId)) : nullptr;
    return body ? rectIn(m_dialog, body) : RECT{};
}

}  // namespace knav
