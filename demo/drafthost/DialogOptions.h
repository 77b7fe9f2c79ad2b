// Every option that a host can set on the file dialog, as values.
#pragma once

#include <platform/CString.h>

class CNavDialog;

/// Named after the options of CNavDialog, whose header says what each does; the values here are its defaults. Flags are
/// ints, as there.
struct DialogOptions {
    // what the dialog is for
    CString dialogCaption{};
    CString okButtonText{};
    int creatingFile = 0;
    int foldersOnly = 0;
    int mayReturnFolder = 0;  ///< a FileDialogAllowReturnFolderEnabler lives while the dialog runs
    int multiSelectAllowed = 0;
    int confirmReplace = 0;
    int okButtonMenuExists = 1;
    int readOnlyAllowed = 1;
    int readOnlyHidden = 0;
    int readOnlySpecified = 0;

    // names and file types
    CString fileTypes =  ///< description and patterns in turn, parted by "|"
        L"Drawings (*.dwg)|*.dwg|Drawing templates (*.dwt)|*.dwt|All files (*.*)|*.*|";
    CString defaultFileExtension{};
    CString initialFileName{};
    int defaultFilterIndex = 0;
    int forceFilterIndex = -1;
    int filterIndex = -1;  ///< chosen once the dialog is shown; -1 leaves its own choice
    int acceptAnyFileExtension = 0;
    int useRegExtensionFlags = 1;

    // folders and view
    CString forceInitialFolder{};
    CString defaultInitialFolder{};
    unsigned int viewMode = 0;  ///< set once the dialog is shown; 0 leaves the one that was remembered
    unsigned int toolsMenuItemsPresent = 0xFFFFFFFF;
    int ownListControl = 0;  ///< FolderListCtrl: the host hands the dialog a list control of its own

    // places and internet
    int noFtpInPlaces = 0;
    int noFavoritesInPlaces = 0;
    int noExtraExtensionsInPlaces = 0;
    int noFtp = 0;
    int noExtraExtensions = 0;
    int noUrlsAllowed = 0;
    int noUrlFileTransfer = 0;

    /// Hands them to a dialog that is not shown yet.
    void applyTo(CNavDialog& dialog) const;
    /// Those that only hold once the dialog is shown.
    void applyToShown(CNavDialog& dialog) const;
};
