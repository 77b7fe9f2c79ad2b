// Where a browse goes.
#pragma once

#include "shell/ComPtr.h"
#include "shell/ItemList.h"

namespace knav {

/// The folder to be shown. Without a folder the browse cannot be done.
struct BrowseTarget {
    ItemList id;  // qualified
    ComPtr<IShellFolder> folder;
    bool boundFromDesktop = false;  // `folder` is what binding `id` from the desktop gives
};

/// Finds the folder that a browse with SBSP_ `flags` goes to from the current one; a shortcut leads to its target.
BrowseTarget findBrowseTarget(ITEMIDLIST* list, UINT flags, ITEMIDLIST* currentId, IShellFolder* currentFolder);

}  // namespace knav
