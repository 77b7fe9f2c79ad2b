#include "shell/FolderPaths.h"

#include <knav/NavFolders.h>
#include <platform/ScopedErrorMode.h>

#include "shell/Guard.h"
#include "shell/ItemList.h"
#include "shell/ListWalk.h"

namespace knav {

CString pathOfFolder(const ITEMIDLIST* list) {
    wchar_t path[MAX_PATH] = {};
    const bool found =
        list != nullptr && isWhole(list) && guardedTrue([&] { return SHGetPathFromIDListW(list, path); });
    return found && path[0] != L':' ? CString(path) : CString();  // some systems give "::{...}" for a path
}

CString pathOfSpecialFolder(int csidl) {
    return pathOfFolder(ItemList::adopt(NavGetSpecialFolderItem(nullptr, csidl)).get());
}

bool isPathThere(const wchar_t* path) noexcept {
    const ScopedErrorMode quiet;
    return GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace knav
