// The owner of a modal dialog: disabled while the dialog runs, and afterwards as it was before.
#pragma once

#include <platform/Windows.h>

namespace zoui {

class ModalOwner {
public:
    // The top-level window of `parent`, or the thread's active window for null; it may be that there is none.
    explicit ModalOwner(HWND parent) noexcept;
    ~ModalOwner() { enable(); }
    ModalOwner(const ModalOwner&) = delete;
    ModalOwner& operator=(const ModalOwner&) = delete;

    HWND window() const noexcept { return m_window; }
    // Undoes the disabling; an owner that was disabled before stays so.
    void enable() noexcept;
    // To be called when the dialog's window is gone.
    void restoreFocus() const noexcept;

private:
    HWND m_focus;
    HWND m_window;
    bool m_disabled;
};

}  // namespace zoui
