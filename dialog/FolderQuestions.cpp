#include "dialog/FolderQuestions.h"

#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include "shell/ComPtr.h"

namespace knav {
namespace {

bool isOnDisk(ITEMIDLIST* list) {
    wchar_t path[MAX_PATH];
    return !SHGetPathFromIDListW(list, path) || path[0] == L':' || path[0] == L'\0' ||
           GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

bool sameFolder(ITEMIDLIST* a, ITEMIDLIST* b) {
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    return desktop && NavCompareFolderItems(desktop.get(), a, b) == 0;
}

bool canBeShown(ITEMIDLIST* list) {
    // Some systems bind to drives and folders that are not there.
    return list && isOnDisk(list) && ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(list));
}

}  // namespace knav
