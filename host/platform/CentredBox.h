// Puts a message box over the window that it belongs to.
#pragma once

#include <platform/Windows.h>

namespace zoui {

// Moves a window to the middle of another, as far as the screen lets it. Nothing happens when that is null, hidden or
// minimised.
void centreOver(HWND window, HWND owner) noexcept;

// The system shows message boxes in the middle of the screen, which may be far from what they are about. While this
// lives, the next dialog that this thread shows over `owner` is centred over it.
class CentredBox {
public:
    explicit CentredBox(HWND owner) noexcept;
    ~CentredBox();
    CentredBox(const CentredBox&) = delete;
    CentredBox& operator=(const CentredBox&) = delete;

private:
    static LRESULT CALLBACK onActivity(int code, WPARAM wParam, LPARAM lParam) noexcept;

    HWND m_owner;  // null when the box has been placed
    CentredBox* m_outer;
    HHOOK m_hook;
};

}  // namespace zoui
