// Where resources are looked up: the current module first, then every registered extension module.
#pragma once

#include <platform/CString.h>
#include <platform/Windows.h>
#include <platform/export.h>

// The module of the running program.
ZOUI_API HINSTANCE AfxGetInstanceHandle() noexcept;

// The process-wide current resource module; the program's own until one is set. Null sets that again.
// Used from the user-interface thread.
ZOUI_API HINSTANCE AfxGetResourceHandle() noexcept;
ZOUI_API void AfxSetResourceHandle(HINSTANCE module) noexcept;

// The module that holds the resource: the current one, then the extension modules with the newest first, then this
// framework. When none has it, the current one. `name` and `type` may be MAKEINTRESOURCE values.
ZOUI_API HINSTANCE AfxFindResourceHandle(const wchar_t* name, const wchar_t* type) noexcept;

// A string of the same modules in the same order. FALSE and empty text when none has it.
ZOUI_API BOOL AfxLoadString(UINT id, CString& text);

// Makes a module's resources known to the look-ups above for as long as this object lives. The module is not owned
// and must stay loaded as long. Created and destroyed on the user-interface thread.
class ZOUI_API CDynLinkLibrary {
public:
    explicit CDynLinkLibrary(HINSTANCE module);
    ~CDynLinkLibrary();
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;

private:
    HINSTANCE m_module;
};

// Makes a module the current resource module and restores the previous one at the end of the scope.
class ScopedResourceHandle {
public:
    explicit ScopedResourceHandle(HINSTANCE module) noexcept : m_previous(AfxGetResourceHandle()) {
        AfxSetResourceHandle(module);
    }
    ~ScopedResourceHandle() { AfxSetResourceHandle(m_previous); }
    ScopedResourceHandle(const ScopedResourceHandle&) = delete;
    ScopedResourceHandle& operator=(const ScopedResourceHandle&) = delete;

private:
    HINSTANCE m_previous;
};
