#include <knav/NavItemList.h>
#include <knav/NavNames.h>

#include "data/ApiEdge.h"
#include "shell/FolderCalls.h"

ITEMIDLIST* NavGetQualifiedItemList(IMalloc* allocator, IShellFolder* folder, ITEMIDLIST* list) {
    const auto desktop = knav::desktopFolder();
    if (!desktop || allocator == nullptr || folder == nullptr || list == nullptr) {
        return nullptr;
    }
    CString name;
    NavGetItemNameForParsing(folder, list, name);
    knav::ItemList qualified = knav::parseName(desktop.get(), name);
    return qualified ? qualified.release() : NavBuildItemList(allocator, &list, 1);
}

ITEMIDLIST* NavGetQualifiedItemListFromFolderFullPath(const wchar_t* path) {
    const auto desktop = knav::desktopFolder();
    return knav::parseName(desktop.get(), path).release();
}
