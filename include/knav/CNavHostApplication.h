#pragma once

#include <knav/export.h>
#include <platform/CString.h>

/// Tells the library where the host keeps the registration of navigation extensions.
///
/// The library has a default object; a host replaces it once, before its first dialog, with NavSetHostApplication.
/// Called on the user-interface thread only.
class KNAV_API CNavHostApplication {
public:
    /// Key below HKEY_CURRENT_USER under which extensions are registered. Default "Software\Kelvara".
    /// Returns nonzero when `key` was set.
    virtual int GetExtensionsKey(CString& key);

    /// Key below HKEY_LOCAL_MACHINE that switches extensions off.
    /// Default "Software\Kelvara\Dialogs\AllNavDialogs". Returns nonzero when `key` was set.
    virtual int GetExtensionsDisableKey(CString& key);

protected:
    // The library never deletes the host's object, so the table of virtual functions has no slot for it.
    ~CNavHostApplication() = default;
};

/// Installs the host's object for the rest of the process. The first call wins: it returns 1; every later call
/// returns 0 and changes nothing. The pointer is not checked; the host keeps the object alive as long as it uses the
/// library.
KNAV_API int NavSetHostApplication(CNavHostApplication* host);

/// Chooses the sub-folder of the host executable's folder from which the resource module is loaded, for example
/// L"de". Takes effect only before the first dialog, since the module is loaded once per process; null means none.
KNAV_API void KNavSetLanguage(const wchar_t* language);
