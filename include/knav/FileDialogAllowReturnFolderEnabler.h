#pragma once

#include <knav/export.h>

/// While one of these lives, dialogs may return a folder: OK with nothing chosen gives the current folder, a chosen
/// folder is accepted instead of being entered, and its name appears in the file name field.
///
/// A host makes one on the stack around the dialog call. The mode holds for the whole process and ends with the last
/// object. User-interface thread only.
class KNAV_API FileDialogAllowReturnFolderEnabler {
public:
    FileDialogAllowReturnFolderEnabler();
    ~FileDialogAllowReturnFolderEnabler();
    FileDialogAllowReturnFolderEnabler(const FileDialogAllowReturnFolderEnabler&) = delete;
    FileDialogAllowReturnFolderEnabler& operator=(const FileDialogAllowReturnFolderEnabler&) = delete;

    /// True while at least one object lives.
    static bool status();
};
