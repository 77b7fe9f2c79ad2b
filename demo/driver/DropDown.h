// Menus and lists that drop down.
#pragma once

#include <platform/Windows.h>

#include <functional>

namespace knav::input {

/// Lets `press` open a menu or list and returns its window, of that class in that process. Presses again when nothing
/// has come: a window that has just appeared is given the focus by the window manager late, which closes a menu that
/// was open before. Throws std::runtime_error when nothing comes at all.
HWND dropDown(DWORD process, const wchar_t* className, const std::function<void()>& press);

}  // namespace knav::input
