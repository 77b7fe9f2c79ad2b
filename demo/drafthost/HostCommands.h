// What the host uses the file dialog for.
#pragma once

#include <vector>

#include "DialogOptions.h"
#include "ids.h"

/// One command of the File menu.
struct HostCommand {
    UINT id;
    CString name;
    CString dialogName;  ///< under which the library remembers folder, file type, size and so on
    DialogOptions options;
};

/// In the order of the menu, with the options that each of them sets.
std::vector<HostCommand> standardCommands();
