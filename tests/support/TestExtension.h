// Registers navigation extensions for a test.
#pragma once

#include <knav/CNavExtension.h>

#include "shell/RegisteredExtensions.h"
#include "support/FakeFolder.h"

namespace knav::test {

/// While it lives, the process-wide list holds the extensions of the test only; it is empty afterwards.
class RegisteredForTest {
public:
    RegisteredForTest() { registeredExtensions().RemoveAllData(); }
    RegisteredForTest(const RegisteredForTest&) = delete;
    RegisteredForTest& operator=(const RegisteredForTest&) = delete;
    ~RegisteredForTest() { registeredExtensions().RemoveAllData(); }

    /// An extension with its root item; `folder` may be null for one that is not loaded.
    CNavExtension& add(const wchar_t* name, const ComPtr<FakeFolder>& folder = {}) {
        CNavExtension& extension = *registeredExtensions().AddData();
        extension.SetName(name);
        extension.CreateID();
        extension.SetRootFolder(folder.get());
        return extension;
    }
};

}  // namespace knav::test
