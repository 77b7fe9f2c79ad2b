// Small icons of items.
#pragma once

#include <platform/GdiOwners.h>
#include <platform/Windows.h>

namespace knav {

/// The shell's small icon of a qualified list; null when it has none.
zoui::UniqueIcon systemIcon(const ITEMIDLIST* list);

/// The shell's icon of any closed folder, without a look at a disk.
zoui::UniqueIcon closedFolderIcon();

/// The picture of the FTP sites.
zoui::UniqueIcon ftpSitesIcon();

/// The icon that the folder extracts for one of its items, or for itself when `id` is null. Null without a folder.
zoui::UniqueIcon extractedIcon(IShellFolder* folder, const ITEMIDLIST* id);

}  // namespace knav
