// Saves what the screen shows of a window.
#pragma once

#include <platform/Windows.h>

#include <string>

namespace knav::input {

/// Writes a PNG file. Throws std::runtime_error when that fails.
void saveScreenshot(HWND window, const std::wstring& file);

}  // namespace knav::input
