// Keeps a test's settings out of the user's own and out of the next test's.
#pragma once

#include <platform/CString.h>

namespace knav::test {

/// While it lives, a predefined key of this process is an empty scratch key, removed at the end. No two for one key.
class RegistryRedirect {
public:
    explicit RegistryRedirect(HKEY predefined = HKEY_CURRENT_USER);
    RegistryRedirect(const RegistryRedirect&) = delete;
    RegistryRedirect& operator=(const RegistryRedirect&) = delete;
    ~RegistryRedirect();

    void set(const wchar_t* key, const wchar_t* name, const CString& value);
    void set(const wchar_t* key, const wchar_t* name, DWORD value);
    void remove(const wchar_t* key);

private:
    const HKEY m_predefined;
    CString m_scratch;  // its path below the real HKEY_CURRENT_USER
};

}  // namespace knav::test
