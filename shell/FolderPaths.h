// Where folders are on disk, and whether they still are.
#pragma once

#include <platform/CString.h>

namespace knav {

/// The file system path of a qualified list; empty outside of the file system.
CString pathOfFolder(const ITEMIDLIST* list);
/// The same of a special location (CSIDL_...).
CString pathOfSpecialFolder(int csidl);

/// Whether a path is there; the system says nothing to the user about an empty drive. On a network it may take long.
bool isPathThere(const wchar_t* path) noexcept;

}  // namespace knav
