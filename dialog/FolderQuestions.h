// Small questions about folders.
#pragma once

#include <platform/Windows.h>

class CNavNode;

namespace knav {

/// Whether two qualified lists name the same folder.
bool sameFolder(ITEMIDLIST* a, ITEMIDLIST* b);

/// Whether a node lies in an extension, on the internet or in Web Folders: its location is a text there, not a path.
bool isSite(const CNavNode* node);

/// Whether the folder of a qualified list is there and can be shown. A folder of the network is waited for no longer
/// than the user is expected to wait (networkPatience).
bool canBeShown(ITEMIDLIST* list);

}  // namespace knav
