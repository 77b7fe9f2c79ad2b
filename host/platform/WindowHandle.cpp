#include <platform/WindowHandle.h>

namespace zoui {

namespace {

struct Broadcast {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

BOOL CALLBACK sendTo(HWND child, LPARAM parameter) {
    const auto& broadcast = *reinterpret_cast<const Broadcast*>(parameter);
    ::SendMessageW(child, broadcast.message, broadcast.wParam, broadcast.lParam);
    return TRUE;
}

BOOL modifyStyle(HWND window, int which, DWORD remove, DWORD add, UINT positionFlags) {
    const auto before = static_cast<DWORD>(::GetWindowLongPtrW(window, which));
    const DWORD after = (before & ~remove) | add;
    if (after == before) {
        return FALSE;
    }
    ::SetWindowLongPtrW(window, which, static_cast<LONG_PTR>(after));
    if (positionFlags != 0) {
        constexpr UINT kStay = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0, kStay | positionFlags);
    }
    return TRUE;
}

}  // namespace

void WindowHandle::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam) const {
    const Broadcast broadcast{message, wParam, lParam};
    if (m_hWnd != nullptr) {  // null would mean every window of the desktop
        ::EnumChildWindows(m_hWnd, sendTo, reinterpret_cast<LPARAM>(&broadcast));
    }
}

void WindowHandle::GetWindowText(CString& text) const {
    const int room = GetWindowTextLength();
    text.Empty();
    wchar_t* const buffer = text.GetBufferSetLength(room);
    text.ReleaseBuffer(::GetWindowTextW(m_hWnd, buffer, room + 1));
}

void WindowHandle::GetDlgItemText(int id, CString& text) const {
    WindowHandle item;
    item.m_hWnd = ::GetDlgItem(m_hWnd, id);
    item.GetWindowText(text);
}

BOOL WindowHandle::ModifyStyle(DWORD remove, DWORD add, UINT positionFlags) const {
    return modifyStyle(m_hWnd, GWL_STYLE, remove, add, positionFlags);
}

BOOL WindowHandle::ModifyStyleEx(DWORD remove, DWORD add, UINT positionFlags) const {
    return modifyStyle(m_hWnd, GWL_EXSTYLE, remove, add, positionFlags);
}

}  // namespace zoui
