// Controls as a person sees them.
#pragma once

#include <platform/GdiOwners.h>

#include <string>
#include <vector>

namespace knav::test {

inline std::wstring textOf(HWND window) {
    wchar_t text[300] = L"";
    GetWindowTextW(window, text, 300);
    return text;
}

inline std::wstring classOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

/// The texts of a combo box's rows.
inline std::vector<std::wstring> rowsOf(HWND combo) {
    std::vector<std::wstring> rows(static_cast<std::size_t>(SendMessageW(combo, CB_GETCOUNT, 0, 0)));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        wchar_t text[MAX_PATH] = L"";
        SendMessageW(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
        rows[i] = text;
    }
    return rows;
}

inline RECT rectIn(HWND dialog, HWND control) {
    RECT rect{};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

/// Room that the text of a control takes on one line.
inline SIZE extentOf(HWND control) {
    const zoui::WindowDC dc(control);
    const zoui::SelectedObject font(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT rect{};
    DrawTextW(dc, textOf(control).c_str(), -1, &rect, DT_CALCRECT | DT_SINGLELINE);
    return {rect.right, rect.bottom};
}

}  // namespace knav::test
