// Folders as texts: the word for the desktop, and the folders that a dialog falls back to.
#pragma once

#include <platform/CString.h>

namespace knav {

/// Stands for the desktop where a folder's path is expected, and is stored for it.
inline constexpr wchar_t kDesktopKeyword[] = L"Desktop";
bool isDesktopKeyword(const wchar_t* text);

/// The process's current folder; empty when it does not fit a buffer of `room` characters.
CString currentDirectory(DWORD room = MAX_PATH);

/// The folder of the host's executable, without its last backslash (but "C:\"); empty when it cannot be read.
CString executableFolder();

/// The system's own folder.
CString windowsFolder();

}  // namespace knav
