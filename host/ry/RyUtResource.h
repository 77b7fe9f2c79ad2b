// Modules that are loaded for their resources.
#pragma once

#include <platform/Windows.h>
#include <platform/export.h>

class ZOUI_API RyUtResource {
public:
    RyUtResource() = delete;

    /// Loads a module as a source of resources; none of its code runs. `path` is a full path, or a name relative to the
    /// folder of the module `besides` (this framework's when null) or, failing that, of the program. The current
    /// directory and the search path are never looked at. The module stays loaded until freeDll; null on failure. Any
    /// thread.
    static HINSTANCE loadDll(const wchar_t* path, HINSTANCE besides = nullptr) noexcept;

    /// Nonzero when the module was freed; 0 for null or a foreign handle.
    static int freeDll(HINSTANCE module) noexcept;
};
