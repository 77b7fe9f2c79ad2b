// Saves what the screen shows of windows.
#pragma once

#include <platform/Windows.h>

#include <initializer_list>
#include <string>

namespace knav::input {

/// Writes a PNG file of windows that lie over or beside each other, once they have stopped changing; what is around
/// them is white. Throws std::runtime_error when that fails.
void saveScreenshot(std::initializer_list<HWND> windows, const std::wstring& file);

/// Waits until what the screen shows at the window's place has stopped changing: a window that was moved gets there
/// late.
void waitUntilSettled(HWND window);

}  // namespace knav::input
