#include "support/RegistryRedirect.h"

#include <stdexcept>

namespace {

void require(LONG error, const char* what) {
    if (error != ERROR_SUCCESS) {
        throw std::runtime_error(what);
    }
}

}  // namespace

knav::test::RegistryRedirect::RegistryRedirect() {
    m_scratch.Format(L"Software\\KnavTests\\%lu", GetCurrentProcessId());
    RegDeleteTreeW(HKEY_CURRENT_USER, m_scratch);
    HKEY key = nullptr;
    require(RegCreateKeyExW(HKEY_CURRENT_USER, m_scratch, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr),
            "cannot make the scratch registry key");
    const LONG error = RegOverridePredefKey(HKEY_CURRENT_USER, key);
    RegCloseKey(key);
    require(error, "cannot redirect HKEY_CURRENT_USER");
}

knav::test::RegistryRedirect::~RegistryRedirect() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, m_scratch);
}
