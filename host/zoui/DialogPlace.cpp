#include "zoui/DialogPlace.h"

#include <algorithm>
#include <cwchar>

namespace zoui {
namespace {

constexpr int kFarthest = 0x7FFF;  // what a window's coordinates can be

bool isWithin(int value, int least, int most) noexcept {
    return value >= least && value <= most;
}

}  // namespace

CString toText(const DialogPlace& place) {
    CString text;
    text.Format(L"%d %d %d %d %u", place.area.left, place.area.top, place.area.right - place.area.left,
                place.area.bottom - place.area.top, place.dpi);
    return text;
}

std::optional<DialogPlace> placeFromText(const CString& text) {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int dpi = 0;
    int read = 0;
    const int fields = std::swscanf(text, L"%6d %6d %5d %5d %4d%n", &left, &top, &width, &height, &dpi, &read);
    const bool isSound = fields == 5 && read == text.GetLength() && isWithin(left, -kFarthest, kFarthest) &&
                         isWithin(top, -kFarthest, kFarthest) && isWithin(width, 1, kFarthest) &&
                         isWithin(height, 1, kFarthest) && isWithin(dpi, 48, 960);
    if (!isSound) {
        return std::nullopt;
    }
    return DialogPlace{{left, top, left + width, top + height}, static_cast<UINT>(dpi)};
}

SIZE sizeAtDpi(const DialogPlace& place, UINT dpi) noexcept {
    const int from = static_cast<int>(place.dpi);
    const int to = static_cast<int>(dpi);
    return {MulDiv(place.area.right - place.area.left, to, from), MulDiv(place.area.bottom - place.area.top, to, from)};
}

RECT fitInto(const RECT& wanted, const RECT& room) noexcept {
    const LONG width = std::min(wanted.right - wanted.left, room.right - room.left);
    const LONG height = std::min(wanted.bottom - wanted.top, room.bottom - room.top);
    const LONG left = std::clamp(wanted.left, room.left, room.right - width);
    const LONG top = std::clamp(wanted.top, room.top, room.bottom - height);
    return {left, top, left + width, top + height};
}

}  // namespace zoui
