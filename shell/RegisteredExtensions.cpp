#include "shell/RegisteredExtensions.h"

CNavExtensionArray::CNavExtensionArray() = default;
CNavExtensionArray::~CNavExtensionArray() = default;

CNavExtensionArray& knav::registeredExtensions() noexcept {
    // Never destroyed: when the library is unloaded, the modules of the extensions' objects may be gone already.
    static auto& extensions = *new CNavExtensionArray;
    return extensions;
}
