#include "shell/RegisteredExtensions.h"

#include <knav/NavExtensions.h>

#include "data/NeverDestroyed.h"

CNavExtensionArray::CNavExtensionArray() = default;
CNavExtensionArray::~CNavExtensionArray() = default;

CNavExtensionArray& knav::registeredExtensions() noexcept {
    return neverDestroyed<CNavExtensionArray>();
}

// Components cannot be registered yet, so there is nothing to bring up to date: the list holds what code put into it.
int NavInitializeExtensions(HWND, const CString&) {
    return 1;
}
