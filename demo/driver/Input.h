// Keyboard and mouse input as a person's hands make it: through the system's input queue, to whatever has the focus.
#pragma once

#include <platform/Windows.h>

#include <functional>
#include <string_view>

namespace knav::input {

/// Each returns when the system has taken the input, not when a window has handled it.
void typeText(std::wstring_view text);
/// Presses and releases `key` while `modifier` (0: none) is held.
void pressKey(WORD key, WORD modifier = 0);
/// Clicks the left button at a screen position, `times` times in a row. Waits first when the click before it was at the
/// same place, so that the two are not taken for a double click.
void click(POINT position, int times = 1, WORD modifier = 0);
/// Takes the pointer to the corner of the screen, where it points at nothing: a list that drops under it would follow
/// it.
void parkPointer();

/// Polls until `ready` or until `limitMs` has passed; the last answer of `ready`.
bool waitUntil(const std::function<bool()>& ready, DWORD limitMs = 10'000);

}  // namespace knav::input
