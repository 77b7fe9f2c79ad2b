// A folder of a test's own, empty at first and gone with its content at the end.
#pragma once

#include <platform/CString.h>

namespace knav::test {

class ScopedTempFolder {
public:
    ScopedTempFolder();
    ScopedTempFolder(const ScopedTempFolder&) = delete;
    ScopedTempFolder& operator=(const ScopedTempFolder&) = delete;
    ~ScopedTempFolder();

    /// Full path, long form, without a trailing separator.
    const CString& path() const noexcept { return m_path; }
    /// Full path of `relative` in the folder; it need not exist.
    CString path(const wchar_t* relative) const;

    /// Make a file or a folder, and the folders on the way to it; they return its full path.
    CString addFile(const wchar_t* relative, std::string_view content = "x") const;
    CString addFolder(const wchar_t* relative) const;
    /// Adds `count` empty files; quick enough for ten thousand.
    void addFiles(int count, CString (*nameOf)(int number)) const;

private:
    CString m_path;
};

}  // namespace knav::test
