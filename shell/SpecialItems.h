// Items below roots that the dialog treats specially.
#pragma once

#include <platform/Windows.h>

/// Nonzero for an item below the internet root.
int NavIsInternetSiteItem(ITEMIDLIST* list);

/// Nonzero for the Web Folders namespace in My Computer, and for items below it.
int NavIsWebFoldersItem(ITEMIDLIST* list);
