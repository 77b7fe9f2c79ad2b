// What a button of ours shows and where its parts are, as plain functions of its state: the windows gather the facts
// and paint the answer.
#pragma once

#include <platform/Windows.h>

#include "controls/Dpi.h"

namespace knav {

/// Everything that decides how a button looks.
struct ButtonState {
    bool disabled = false;
    bool hot = false;        ///< the pointer is over it
    bool pressed = false;    ///< held down
    bool checked = false;    ///< stays down
    bool dropped = false;    ///< its menu is open
    bool isDefault = false;  ///< Enter presses it
    bool focusCue = false;   ///< it has the focus, and the dialog shows focus frames
};

/// The part of a button with a drop-down menu that the pointer is on or that is held down.
enum class ButtonPart { None, Main, Menu };

/// The state numbers of the system's theme parts.
int pushButtonThemeState(const ButtonState& state);
int toolButtonThemeState(const ButtonState& state);

/// The edge of a flat tool button without a theme: 0 for none, else the flag for DrawEdge.
UINT toolButtonEdge(const ButtonState& state);

/// The part of a button that drops its menu, at its right end (in a mirrored window the left one); empty without a
/// menu. It never takes more than half of the button.
RECT menuPartOf(const RECT& button, UINT dpi, bool menuExists);

/// The rest of the button.
RECT mainPartOf(const RECT& button, UINT dpi, bool menuExists);

ButtonPart buttonPartAt(const RECT& button, UINT dpi, bool menuExists, POINT at);

/// A picture and a drop arrow (when `arrow` is set) side by side, centred in the button together.
struct ToolButtonParts {
    RECT picture;
    RECT arrow;
};
ToolButtonParts layOutToolButton(const RECT& button, SIZE picture, UINT dpi, bool arrow);

/// The three corners of a downward arrow centred in `room`.
struct ArrowCorners {
    POINT corners[3];
};
ArrowCorners dropArrowIn(const RECT& room, UINT dpi);

/// Whether a key asks a button for its menu: F4, or Up and Down with Alt; on a pure menu button also without.
bool isDropKey(WPARAM key, bool alt, bool pureMenuButton);

}  // namespace knav
