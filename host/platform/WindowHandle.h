// The everyday operations on a window handle, under their usual names.
#pragma once

#include <platform/CString.h>
#include <platform/Windows.h>
#include <platform/export.h>

namespace zoui {

// Holds a handle without owning it. Every operation on a null or dead handle does nothing and answers 0.
class ZOUI_API WindowHandle {
public:
    HWND m_hWnd = nullptr;

    HWND GetSafeHwnd() const noexcept { return m_hWnd; }
    operator HWND() const noexcept { return m_hWnd; }

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return m_hWnd != nullptr && ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendDlgItemMessageW(m_hWnd, id, message, wParam, lParam);
    }
    // To every child, grandchild and so on.
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    // Text and font.
    BOOL SetWindowText(const wchar_t* text) const { return ::SetWindowTextW(m_hWnd, text); }
    int GetWindowTextLength() const { return ::GetWindowTextLengthW(m_hWnd); }
    void GetWindowText(CString& text) const;
    BOOL SetDlgItemText(int id, const wchar_t* text) const { return ::SetDlgItemTextW(m_hWnd, id, text); }
    void GetDlgItemText(int id, CString& text) const;
    HFONT GetFont() const { return reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)); }

    // State.
    BOOL ShowWindow(int show) const { return ::ShowWindow(m_hWnd, show); }
    BOOL EnableWindow(BOOL enable = TRUE) const { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    BOOL IsChild(HWND child) const { return ::IsChild(m_hWnd, child); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    // With `positionFlags` (SWP_...) the window is told to redraw its frame. Nonzero when the style changed.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT positionFlags = 0) const;
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT positionFlags = 0) const;
    BOOL SetWindowContextHelpId(DWORD id) const { return ::SetWindowContextHelpId(m_hWnd, id); }
    UINT GetDpi() const { return ::GetDpiForWindow(m_hWnd); }

    // Place.
    void MoveWindow(int x, int y, int width, int height, BOOL repaint = TRUE) const {
        ::MoveWindow(m_hWnd, x, y, width, height, repaint);
    }
    void MoveWindow(const RECT& place, BOOL repaint = TRUE) const {
        MoveWindow(place.left, place.top, place.right - place.left, place.bottom - place.top, repaint);
    }
    BOOL SetWindowPos(HWND after, int x, int y, int width, int height, UINT flags) const {
        return ::SetWindowPos(m_hWnd, after, x, y, width, height, flags);
    }
    void GetWindowRect(RECT* rectangle) const { ::GetWindowRect(m_hWnd, rectangle); }
    void GetClientRect(RECT* rectangle) const { ::GetClientRect(m_hWnd, rectangle); }
    void ScreenToClient(POINT* point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(RECT* rectangle) const { ::MapWindowPoints(nullptr, m_hWnd, asPoints(rectangle), 2); }
    void ClientToScreen(POINT* point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(RECT* rectangle) const { ::MapWindowPoints(m_hWnd, nullptr, asPoints(rectangle), 2); }

    // Painting.
    void Invalidate(BOOL erase = TRUE) const { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(const RECT* rectangle, BOOL erase = TRUE) const { ::InvalidateRect(m_hWnd, rectangle, erase); }
    void UpdateWindow() const { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL redraw = TRUE) const { SendMessage(WM_SETREDRAW, redraw); }

    // Timers without callback, and check boxes.
    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds) const { return ::SetTimer(m_hWnd, id, milliseconds, nullptr); }
    BOOL KillTimer(UINT_PTR id) const { return ::KillTimer(m_hWnd, id); }
    void CheckDlgButton(int id, UINT check) const { ::CheckDlgButton(m_hWnd, id, check); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }

private:
    static POINT* asPoints(RECT* rectangle) noexcept { return reinterpret_cast<POINT*>(rectangle); }
};

}  // namespace zoui
