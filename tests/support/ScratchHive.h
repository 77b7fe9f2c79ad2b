// An empty registry hive in place of the machine's or of the classes root.
#pragma once

#include <platform/CString.h>

#include "support/Printers.h"

namespace knav::test {

/// While it lives, a predefined key other than HKEY_CURRENT_USER is an empty scratch key of this process, removed at
/// the end. For HKEY_CURRENT_USER there is RegistryRedirect.
class ScratchHive {
public:
    explicit ScratchHive(HKEY predefined) : m_predefined(predefined) {
        m_path.Format(L"Software\\KnavTests\\%lu-hive", GetCurrentProcessId());
        RegDeleteTreeW(HKEY_CURRENT_USER, m_path);
        RegCreateKeyExW(HKEY_CURRENT_USER, m_path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &m_key, nullptr);
        EXPECT_EQ(RegOverridePredefKey(m_predefined, m_key), ERROR_SUCCESS);
    }
    ScratchHive(const ScratchHive&) = delete;
    ScratchHive& operator=(const ScratchHive&) = delete;
    ~ScratchHive() {
        RegOverridePredefKey(m_predefined, nullptr);
        RegCloseKey(m_key);
        RegDeleteTreeW(HKEY_CURRENT_USER, m_path);
    }

    void set(const wchar_t* key, const wchar_t* name, const CString& value) {
        RegSetKeyValueW(m_key, key, name, REG_SZ, value.GetString(),
                        static_cast<DWORD>((value.GetLength() + 1) * sizeof(wchar_t)));
    }
    void set(const wchar_t* key, const wchar_t* name, DWORD value) {
        RegSetKeyValueW(m_key, key, name, REG_DWORD, &value, sizeof value);
    }
    void remove(const wchar_t* key) { RegDeleteTreeW(m_key, key); }

private:
    HKEY m_predefined;
    CString m_path;
    HKEY m_key = nullptr;
};

}  // namespace knav::test
