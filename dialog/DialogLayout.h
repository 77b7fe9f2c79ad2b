// Lays a dialog window out as it is resized. The rule is Layout's; this object reads the template's rectangles from the
// window, moves the controls in one go, and keeps the resize grip in the corner.
#pragma once

#include <map>

#include "dialog/Layout.h"

namespace knav {

class DialogLayout {
public:
    /// Takes the dialog as its template made it: call once, before anything resizes it. `rows` must outlive this
    /// object.
    void capture(HWND dialog, std::span<const GrowRow> rows, UINT bodyId);

    /// Gives the room of a hidden column left of the body to its neighbours, and lays out again.
    void closeColumn(UINT id);

    /// Gives the room of a hidden control in a row to what stands before it, and lays out again.
    void closeGap(UINT id);

    /// Puts two buttons that stand one above the other into one row, and lays out again.
    void joinRows(UINT upper, UINT lower);

    /// The client area has this size now (WM_SIZE).
    void apply(int cx, int cy);

    /// The smallest size of the window itself (WM_GETMINMAXINFO); 0 x 0 before capture.
    SIZE minTrack() const;

    /// Makes a window that is larger than its screen as small as that, and moves it onto it.
    void fitScreen() const;

    /// Where the body is, in client coordinates; empty without one.
    RECT bodyRect() const;

private:
    void layOutAgain();
    void move(HDWP& moves, size_t index, SIZE client) const;
    void placeGrip(int cx, int cy) const;

    HWND m_dialog = nullptr;
    HWND m_grip = nullptr;
    UINT m_bodyId = 0;
    SIZE m_frame{};  // what the window is larger than its client area
    Layout m_layout;
    std::vector<HWND> m_windows;
    std::map<HWND, int> m_comboHeights;  // with their lists
};

}  // namespace knav
