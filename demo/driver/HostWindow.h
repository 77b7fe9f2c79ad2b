// Operates the window of the sample host, as its own process, by keyboard and mouse.
#pragma once

#include <platform/GdiOwners.h>
#include <platform/Windows.h>

#include <string>

namespace knav::input {

/// Failures throw std::runtime_error with a text for the person who runs the program.
class HostWindow {
public:
    /// Starts the host, which lies beside this program, with these arguments, and waits for its window. The host ends
    /// with this object at the latest.
    explicit HostWindow(const std::wstring& arguments);
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;
    ~HostWindow();

    HWND window() const noexcept { return m_window; }
    DWORD process() const noexcept { return m_processId; }

    /// Opens a menu by Alt and its letter, then chooses an entry by its letter (0: leaves it open).
    void choose(wchar_t menu, wchar_t entry) const;
    /// Waits until the window is the one in front again, and returns all that its log pane says.
    std::wstring log() const;
    /// Closes the window as its Exit command does and returns the exit code; -1 when the program does not end.
    int close() const;

    /// A window of the host other than the main one, of that title; waits for it.
    HWND waitForWindow(const std::wstring& title) const;
    void waitUntilInFront(HWND window) const;

private:
    zoui::UniqueHandle<HANDLE, CloseHandle> m_process;
    DWORD m_processId = 0;
    HWND m_window = nullptr;
};

}  // namespace knav::input
