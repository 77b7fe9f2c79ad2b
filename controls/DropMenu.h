// Drops the menu of a button.
#pragma once

#include <platform/Windows.h>

class CNavButtonMenuSource;

namespace knav {

/// Asks `source` for the menu of `button`, shows it under the button (above it where there is no room) and returns when
/// it has closed. What was chosen is posted to the button's parent. With `byKeyboard` the first entry is highlighted.
/// The click that closes the menu by hitting the button again does not open it anew. False when there was no menu.
bool dropButtonMenu(HWND button, CNavButtonMenuSource* source, bool byKeyboard);

}  // namespace knav
