// The navigation extensions that are registered for the user.
#pragma once

#include <knav/export.h>
#include <platform/CString.h>
#include <platform/Windows.h>

/// Brings the process-wide list of navigation extensions up to date. Components cannot be registered yet: for now the
/// call changes nothing, and the list holds what code has put into it. Every dialog calls it when it starts, before it
/// shows a folder; an add-in that has just registered an extension may call it as well. `window` owns whatever an
/// extension has to show meanwhile; `subkey`, the host's product name, may be empty. Returns 1. User-interface thread
/// only. Nothing throws.
KNAV_API int NavInitializeExtensions(HWND window, const CString& subkey);
