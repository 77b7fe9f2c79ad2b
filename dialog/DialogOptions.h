// What a host has set on a dialog, and what policies of the user add to it.
#pragma once

#include <platform/CString.h>

namespace knav {

/// The name under which all dialogs keep what they share.
inline constexpr wchar_t kAllDialogsName[] = L"AllKnavDialogs";

struct DialogOptions {
    CString caption;
    CString defaultFileExtension;
    CString forceInitialFolder;
    CString defaultInitialFolder;
    CString initialFileName;
    CString okButtonText;
    int filterIndex = 0;
    int defaultFilterIndex = 0;
    int forceFilterIndex = -1;
    int useRegExtensionFlags = 1;
    int confirmReplace = 0;
    int acceptAnyFileExtension = 0;
    int noUrlFileTransfer = 0;
    int noUrlsAllowed = 0;
    int readOnlyAllowed = 1;
    int readOnlyHidden = 0;
    int readOnlySpecified = 0;
    int creatingFile = 0;
    unsigned int toolsMenuItemsPresent = 0xFFFFFFFF;
    int noFtp = 0;
    int noFtpInPlaces = 0;
    int noFavoritesInPlaces = 0;
    int noExtraExtensions = 0;
    int noExtraExtensionsInPlaces = 0;
    int foldersOnly = 0;
};

/// Switched on by the user's policies, some also by the dialog's purpose.
struct DialogPolicies {
    int noPlacesList = 0;
    int noBackButton = 0;
    int noFileMru = 0;
    int noRecentDocsHistory = 0;
};

/// Reads the policies of the current user; a key that cannot be opened leaves its flags as they are.
void applyPolicies(DialogPolicies& policies);

}  // namespace knav
