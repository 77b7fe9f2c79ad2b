#include "support/RegistryRedirect.h"

#include <stdexcept>

knav::test::RegistryRedirect::RegistryRedirect(HKEY predefined) : m_predefined(predefined) {
    m_scratch.Format(L"Software\\KnavTests\\%lu-%p", GetCurrentProcessId(), predefined);
    RegDeleteTreeW(HKEY_CURRENT_USER, m_scratch);
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, m_scratch, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr) !=
            ERROR_SUCCESS ||
        RegOverridePredefKey(predefined, key) != ERROR_SUCCESS) {
        throw std::runtime_error("cannot redirect the registry");
    }
    RegCloseKey(key);
}

knav::test::RegistryRedirect::~RegistryRedirect() {
    RegOverridePredefKey(m_predefined, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, m_scratch);
}

void knav::test::RegistryRedirect::set(const wchar_t* key, const wchar_t* name, const CString& value) {
    const auto size = static_cast<DWORD>((value.GetLength() + 1) * sizeof(wchar_t));
    RegSetKeyValueW(m_predefined, key, name, REG_SZ, value.GetString(), size);
}

void knav::test::RegistryRedirect::set(const wchar_t* key, const wchar_t* name, DWORD value) {
    RegSetKeyValueW(m_predefined, key, name, REG_DWORD, &value, sizeof value);
}

void knav::test::RegistryRedirect::remove(const wchar_t* key) {
    RegDeleteTreeW(m_predefined, key);
}
