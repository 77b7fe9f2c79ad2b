#include <zoui/CZoUiRegistryAccess.h>

#include <ry/RyRegKey.h>

namespace {

template <class Value>
int read(HKEY hive, const CString& path, const wchar_t* name, Value& value) noexcept {
    RyRegKey key;
    return !path.IsEmpty() && key.open(hive, path) && ryRegGetValue(key.get(), name, value) == ERROR_SUCCESS;
}

template <class Value>
int write(HKEY hive, const CString& path, const wchar_t* name, const Value& value) noexcept {
    RyRegKey key;
    return !path.IsEmpty() && key.create(hive, path) && ryRegSetValue(key.get(), name, value) == ERROR_SUCCESS;
}

bool isGone(LONG error) noexcept {
    return error == ERROR_SUCCESS || error == ERROR_FILE_NOT_FOUND;
}

}  // namespace

int CZoUiRegistryAccess::Read(const wchar_t* name, CString& value) const noexcept {
    return read(m_hive, m_key, name, value);
}

int CZoUiRegistryAccess::Read(const wchar_t* name, unsigned long& value) const noexcept {
    return read(m_hive, m_key, name, value);
}

int CZoUiRegistryAccess::Write(const wchar_t* name, const CString& value) const noexcept {
    return write(m_hive, m_key, name, value);
}

int CZoUiRegistryAccess::Write(const wchar_t* name, unsigned long value) const noexcept {
    return write(m_hive, m_key, name, value);
}

int CZoUiRegistryAccess::Delete(const wchar_t* name) const noexcept {
    if (m_key.IsEmpty()) {
        return 0;
    }
    HKEY opened = nullptr;
    const LONG error = ryRegOpenKeyEx(m_hive, m_key, KEY_SET_VALUE, &opened);
    const RyRegKey key(opened);
    return isGone(error == ERROR_SUCCESS ? ryRegDeleteValue(key.get(), name) : error);
}

int CZoUiRegistryAccess::DeleteKey() const noexcept {
    return isGone(ryRegDeleteTree(m_hive, m_key));
}
