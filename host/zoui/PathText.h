// The rules for the text of file-system paths, without a look at the disk.
#pragma once

#include <string>
#include <string_view>

#include <zoui/CZoUiPathname.h>

namespace zoui {

struct ResolvedPath {
    PathErr error = PathErr::None;
    bool wasAbsolute = false;
    std::wstring path;  // full; empty on error
};

// Completes `text` to a full path; `base` is a full path of a folder, or null for the process's current directory.
ResolvedPath resolvePath(std::wstring_view text, const wchar_t* base, bool allowWildcards);

// A full path in two: the folder, without a trailing separator unless it is a root, and the last name. A root has no
// name, and a trailing separator does not count.
struct SplitPath {
    std::wstring folder;
    std::wstring name;
};
SplitPath splitPath(const std::wstring& path);

// The full path without its trailing separator; a root stays as it is.
std::wstring withoutSlash(const std::wstring& path);
bool endsInSeparator(std::wstring_view path) noexcept;
bool hasWildcard(std::wstring_view name) noexcept;

// One of the path's names is reserved for a device, with or without an extension.
bool namesDevice(const std::wstring& path);

}  // namespace zoui
