// One key of the registry, read and written value by value.
#pragma once

#include <ry/ryReg.h>

/// The key is named, not held open, and is made by the first write. A value of another type or of a wrong size is as
/// good as absent. All operations return nonzero on success, leave their output alone otherwise, and do not throw.
class ZOUI_API CZoUiRegistryAccess {
public:
    /// `key` is the path below `hive`. An empty path refuses everything.
    explicit CZoUiRegistryAccess(const CString& key, HKEY hive = HKEY_CURRENT_USER) : m_hive(hive), m_key(key) {}

    int Read(const wchar_t* name, CString& value) const noexcept;
    int Read(const wchar_t* name, unsigned long& value) const noexcept;
    int Write(const wchar_t* name, const CString& value) const noexcept;
    int Write(const wchar_t* name, unsigned long value) const noexcept;
    /// Success also when there was no such value.
    int Delete(const wchar_t* name) const noexcept;
    int DeleteKey() const noexcept;

    const CString& GetKey() const noexcept { return m_key; }

private:
    HKEY m_hive;
    CString m_key;
};
