// Moving the process to a folder that may lie on a dead network.
#pragma once

#include <functional>
#include <string>

#include <platform/Windows.h>
#include <platform/export.h>

namespace Kelvara::Tessary::PAL::FileSystem {

/// Makes `path` the current directory of the process.
///
/// A location that does not answer holds the caller up for no longer than about two seconds. Returns the text of the
/// folder to use in place of `path`: the folder of the program, which is then the current directory, when `path` did
/// not answer in time; otherwise empty, which means "keep your text". A folder that does not exist changes nothing and
/// gives empty, too. With `isDesktopKeyword` the text is not a path but stands for the desktop: returns empty and
/// changes nothing. The thread's windows paint themselves meanwhile. User-interface thread. Throws std::bad_alloc only.
ZOUI_API std::wstring networkAwareChangeDir(const wchar_t* path, bool isDesktopKeyword);

/// Finds out whether a path is a folder. May block for as long as it likes, and is called on another thread, where it
/// may still be running when the call that asked is long over; it must own what it uses. What it throws
/// counts as no answer.
using FolderProbe = std::function<bool(const std::wstring& path)>;

/// The same with another probe and another limit in milliseconds.
ZOUI_API std::wstring networkAwareChangeDir(const wchar_t* path, bool isDesktopKeyword, FolderProbe probe, DWORD limit);

}  // namespace Kelvara::Tessary::PAL::FileSystem
