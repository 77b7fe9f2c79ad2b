// Small questions about folders.
#pragma once

#include <platform/Windows.h>

namespace knav {

/// Whether two qualified lists name the same folder.
bool sameFolder(ITEMIDLIST* a, ITEMIDLIST* b);

/// Whether the folder of a qualified list is there and can be shown. A folder of the network is waited for no longer
/// than the user is expected to wait (networkPatience).
bool canBeShown(ITEMIDLIST* list);

}  // namespace knav
