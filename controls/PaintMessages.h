// The messages that ask a window to paint itself as a whole.
#pragma once

#include <platform/GdiOwners.h>

#include <optional>

namespace knav {

/// What to answer to such a message, after `paint(HDC)` has painted where that was asked for; nothing for any other
/// message. The background is part of the painting.
template <class Paint>
std::optional<LRESULT> answerPaintMessage(HWND window, UINT message, WPARAM wParam, Paint&& paint) {
    switch (message) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            paint(zoui::PaintDC(window));
            return 0;
        case WM_PRINTCLIENT:
            paint(reinterpret_cast<HDC>(wParam));
            return 0;
        default:
            return std::nullopt;
    }
}

}  // namespace knav
