#include "controls/ButtonRules.h"

#include <vssym32.h>

#include <algorithm>

namespace knav {
namespace {

constexpr int kMenuPartWidth = 18;
constexpr int kArrowRoom = 9;
constexpr int kPictureGap = 3;
constexpr int kArrowHalfWidth = 3;

int width(const RECT& rect) {
    return rect.right - rect.left;
}

}  // namespace

int pushButtonThemeState(const ButtonState& state) {
    if (state.disabled)
        return PBS_DISABLED;
    if (state.pressed)
        return PBS_PRESSED;
    if (state.hot || state.dropped)  // a pressed part beside one that is not would look like another button
        return PBS_HOT;
    return state.isDefault ? PBS_DEFAULTED : PBS_NORMAL;
}

int toolButtonThemeState(const ButtonState& state) {
    if (state.disabled)
        return TS_DISABLED;
    if (state.pressed || state.dropped)
        return TS_PRESSED;
    if (state.checked)
        return state.hot ? TS_HOTCHECKED : TS_CHECKED;
    return state.hot ? TS_HOT : TS_NORMAL;
}

UINT toolButtonEdge(const ButtonState& state) {
    if (state.disabled)
        return 0;
    if (state.pressed || state.dropped || state.checked)
        return BDR_SUNKENOUTER;
    return state.hot ? BDR_RAISEDINNER : 0;
}

RECT menuPartOf(const RECT& button, UINT dpi, bool menuExists) {
    if (!menuExists)
        return {button.right, button.top, button.right, button.bottom};
    const int wide = std::min(scaled(kMenuPartWidth, dpi), width(button) / 2);
    return {button.right - wide, button.top, button.right, button.bottom};
}

RECT mainPartOf(const RECT& button, UINT dpi, bool menuExists) {
    return {button.left, button.top, menuPartOf(button, dpi, menuExists).left, button.bottom};
}

ButtonPart buttonPartAt(const RECT& button, UINT dpi, bool menuExists, POINT at) {
    if (!PtInRect(&button, at))
        return ButtonPart::None;
    const RECT menu = menuPartOf(button, dpi, menuExists);
    return PtInRect(&menu, at) ? ButtonPart::Menu : ButtonPart::Main;
}

ToolButtonParts layOutToolButton(const RECT& button, SIZE picture, UINT dpi, bool arrow) {
    const int arrowRoom = arrow ? scaled(kArrowRoom, dpi) : 0;
    const int gap = arrow && picture.cx > 0 ? scaled(kPictureGap, dpi) : 0;
    const int left = button.left + (width(button) - picture.cx - gap - arrowRoom) / 2;
    const int top = button.top + (button.bottom - button.top - picture.cy) / 2;
    ToolButtonParts parts{};
    parts.picture = {left, top, left + picture.cx, top + picture.cy};
    if (arrow)
        parts.arrow = {parts.picture.right + gap, button.top, parts.picture.right + gap + arrowRoom, button.bottom};
    return parts;
}

ArrowCorners dropArrowIn(const RECT& room, UINT dpi) {
    const int half = std::max(scaled(kArrowHalfWidth, dpi), 2);
    const int middle = room.left + width(room) / 2;
    const int top = room.top + (room.bottom - room.top - half) / 2;
    return {{{middle - half, top}, {middle + half, top}, {middle, top + half}}};
}

bool isDropKey(WPARAM key, bool alt, bool pureMenuButton) {
    if (key == VK_F4)
        return !alt;
    return (key == VK_DOWN || key == VK_UP) && (alt || pureMenuButton);
}

}  // namespace knav
