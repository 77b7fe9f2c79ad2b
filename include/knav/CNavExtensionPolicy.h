#pragma once

/// What the folder hierarchy asks of the dialog that it is built for. A window that has a say in it derives from this
/// class beside its window class; other windows show every extension.
class CNavExtensionPolicy {
public:
    /// Nonzero when extensions that were switched off on this machine are left out.
    virtual int LeavesOutDisabledExtensions() const = 0;

protected:
    ~CNavExtensionPolicy() = default;
};
