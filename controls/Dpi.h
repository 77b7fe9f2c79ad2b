// Measures in pixels for the resolution that a window is shown at.
#pragma once

#include <platform/Windows.h>

namespace knav {

/// The resolution of the monitor that the window is on, in dots per inch; that of the system without a window.
inline UINT dpiOf(HWND window) {
    const UINT dpi = GetDpiForWindow(window);
    return dpi != 0 ? dpi : GetDpiForSystem();
}

/// A measure given at 96 dots per inch, rounded.
inline int scaled(int atNormal, UINT dpi) {
    return MulDiv(atNormal, static_cast<int>(dpi), USER_DEFAULT_SCREEN_DPI);
}

}  // namespace knav
