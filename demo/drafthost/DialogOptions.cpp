#include "DialogOptions.h"

#include <knav/CNavDialog.h>

void DialogOptions::applyTo(CNavDialog& dialog) const {
    dialog.SetDialogCaption(dialogCaption);
    dialog.SetCreatingFile(creatingFile);
    dialog.SetFoldersOnly(foldersOnly);
    dialog.SetMultiSelectAllowed(multiSelectAllowed);
    dialog.SetConfirmReplace(confirmReplace);
    dialog.SetOkButtonText(okButtonText);
    dialog.SetOkButtonMenuExists(okButtonMenuExists);
    dialog.SetReadOnlyAllowed(readOnlyAllowed);
    dialog.SetReadOnlyHidden(readOnlyHidden);
    dialog.SetReadOnlySpecified(readOnlySpecified);

    dialog.SetDefaultFileExtension(defaultFileExtension);
    dialog.SetInitialFileName(initialFileName);
    dialog.SetDefaultFilterIndex(defaultFilterIndex);
    dialog.SetForceFilterIndex(forceFilterIndex);
    dialog.SetAcceptAnyFileExtension(acceptAnyFileExtension);
    dialog.SetUseRegExtensionFlags(useRegExtensionFlags);

    dialog.SetForceInitialFolder(forceInitialFolder);
    if (!defaultInitialFolder.IsEmpty()) {
        dialog.SetDefaultInitialFolder(defaultInitialFolder);
    }
    dialog.SetToolsMenuItemsPresent(toolsMenuItemsPresent);

    dialog.SetNoFTPInPlaces(noFtpInPlaces);
    dialog.SetNoFavoritesInPlaces(noFavoritesInPlaces);
    dialog.SetNoExtraExtensionsInPlaces(noExtraExtensionsInPlaces);
    dialog.SetNoFTP(noFtp);
    dialog.SetNoExtraExtensions(noExtraExtensions);
    dialog.SetNoURLsAllowed(noUrlsAllowed);
    dialog.SetNoURLFileTransfer(noUrlFileTransfer);
}

void DialogOptions::applyToShown(CNavDialog& dialog) const {
    if (filterIndex >= 0) {
        dialog.SetFilterIndex(filterIndex);
    }
    if (viewMode != 0) {
        dialog.SetViewMode(viewMode);
    }
}
