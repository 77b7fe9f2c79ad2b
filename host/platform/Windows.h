// The one place where the Windows headers are included, so that every source sees them with the same settings.
#pragma once

#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef STRICT
#define STRICT
#endif
#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0A00
#endif

#include <windows.h>
#include <windowsx.h>

#include <commctrl.h>
#include <ole2.h>
#include <shlobj.h>
#include <shlwapi.h>

// windowsx.h gives names of window operations to macros.
#undef SubclassWindow
#undef GetFirstChild
#undef GetNextSibling
