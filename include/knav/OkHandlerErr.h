#pragma once

/// Result of the steps that turn a typed name into a full path (CNavDialog::PreprocessData and
/// CNavDialog::CombineDataTextWithFolderName). A host override may return any value; those above OkErrNameTooLong are
/// reported like OkErrInvalidName.
enum OkHandlerErr {
    OkErrNone = 0,                ///< accepted, the text is final
    OkErrNoFileSystemFolder = 1,  ///< the current folder cannot hold files, so a name cannot be placed in it
    OkErrInvalidName = 2,         ///< the name cannot be used
    OkErrNameTooLong = 3,         ///< folder and name together exceed a path of 260 characters
};
