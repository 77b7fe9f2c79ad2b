// Keeps a test's settings out of the user's own and out of the next test's.
#pragma once

#include <platform/CString.h>

namespace knav::test {

/// While it lives, HKEY_CURRENT_USER of this process is an empty scratch key, removed at the end. Do not nest.
class RegistryRedirect {
public:
    RegistryRedirect();
    RegistryRedirect(const RegistryRedirect&) = delete;
    RegistryRedirect& operator=(const RegistryRedirect&) = delete;
    ~RegistryRedirect();

private:
    CString m_scratch;  // its path below the real HKEY_CURRENT_USER
};

}  // namespace knav::test
