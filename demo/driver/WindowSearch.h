// Finding windows of any process.
#pragma once

#include <platform/Windows.h>

#include <string>

namespace knav::input {

/// The topmost top-level window that `accept` takes, or null.
template <class Accept>
HWND findTopLevel(Accept accept) {
    struct Search {
        Accept& accept;
        HWND found;
    } search{accept, nullptr};
    const auto look = [](HWND window, LPARAM parameter) -> BOOL {
        auto& current = *reinterpret_cast<Search*>(parameter);
        if (!current.accept(window)) {
            return TRUE;
        }
        current.found = window;
        return FALSE;
    };
    EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// Whether a window can be seen and is of that process (0: of any).
inline bool isShownBy(HWND window, DWORD process) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    return (process == 0 || process == owner) && IsWindowVisible(window);
}

inline bool isClass(HWND window, const wchar_t* name) {
    wchar_t className[64] = L"";
    GetClassNameW(window, className, ARRAYSIZE(className));
    return lstrcmpiW(className, name) == 0;
}

inline POINT middleOf(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

/// The text of a window, of another process's control too.
inline std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    const LRESULT length = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace knav::input
