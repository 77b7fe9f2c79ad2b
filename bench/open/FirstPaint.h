// Tells when a folder is on the screen, by the same signs whoever shows it.
#pragma once

#include <platform/Windows.h>

#include <chrono>
#include <functional>
#include <optional>

namespace bench {

using Clock = std::chrono::steady_clock;

/// Waits, on the current thread, for the list of a shell view that holds a number of items, is visible and has painted
/// itself with them. It learns of the list when that is created and watches its paint messages; nothing is polled.
class FirstPaint {
public:
    /// `painted` is called once, with the window that the list is part of, from within the list's paint message.
    FirstPaint(int items, std::function<void(HWND top)> painted);
    FirstPaint(const FirstPaint&) = delete;
    FirstPaint& operator=(const FirstPaint&) = delete;
    ~FirstPaint();

    /// When it happened; empty when it did not.
    std::optional<Clock::time_point> when() const { return m_when; }

private:
    static LRESULT CALLBACK onWindow(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK onList(HWND list, UINT message, WPARAM wParam, LPARAM lParam);
    static void CALLBACK onLimit(HWND window, UINT message, UINT_PTR id, DWORD time);
    void paintedList(HWND list);

    const int m_items;
    std::function<void(HWND)> m_painted;
    std::optional<Clock::time_point> m_when;
    HHOOK m_hook;
    UINT_PTR m_limit;
};

/// The topmost visible window of the thread that is not a child; null when there is none.
HWND windowInFront();

}  // namespace bench
