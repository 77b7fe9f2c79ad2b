// Items below roots that the dialog treats specially.
#pragma once

#include <platform/Windows.h>

/// Nonzero for an item below the internet root.
int NavIsInternetSiteItem(ITEMIDLIST* list);

/// Nonzero for the Web Folders namespace in My Computer, and for items below it.
int NavIsWebFoldersItem(ITEMIDLIST* list);

namespace knav {

/// An item of My Computer, without what lies below it, is the Web Folders namespace.
bool isWebFoldersInDrives(ITEMIDLIST* item) noexcept;

}  // namespace knav
