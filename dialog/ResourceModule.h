// The module with the library's texts, menus, templates and pictures.
#pragma once

#include <platform/Windows.h>

namespace knav {

/// Stores the language folder for the load of the module; without effect once it is loaded.
void setResourceLanguage(const wchar_t* language);

/// The resource module, loaded on the first call and then a source of every resource look-up of the process. When it
/// cannot be found the user is told once, and null is returned: the library goes on without resources.
HMODULE resourceModule();

/// Where the library's own templates, menus, keys and texts are looked for: the resource module, and when it is missing
/// a module that has none. Null would stand for the program or for every module, and find a host's own of the same
/// number.
HMODULE ownResources();

/// The module that this code belongs to.
HINSTANCE libraryModule();

}  // namespace knav
