#pragma once

#include <string>

#include <platform/Windows.h>

namespace zoui {

// The module that this code belongs to.
HINSTANCE ownModule() noexcept;

// The folder that a module (null: the program) was loaded from, with its last backslash; empty when it cannot be read.
std::wstring folderOfModule(HINSTANCE module);

}  // namespace zoui
