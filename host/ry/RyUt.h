// What the file system knows about a path.
#pragma once

#include <platform/CString.h>
#include <platform/export.h>

struct RyFileStatus {
    CString m_fullName;      ///< absolute, with every component's long name; case of letters as the folder lists it
    ULONGLONG m_size = 0;    ///< bytes; 0 for a folder
    DWORD m_attributes = 0;  ///< FILE_ATTRIBUTE_ bits
    FILETIME m_created{};
    FILETIME m_modified{};
    FILETIME m_accessed{};
};

class ZOUI_API RyUt {
public:
    RyUt() = delete;

    /// Nonzero when `path` (absolute, or relative to the current directory; no wildcards) names an existing file or
    /// folder; `status` is written only then. Does not throw. May wait for a network volume.
    static int GetFileStatus(const wchar_t* path, RyFileStatus& status) noexcept;
};
