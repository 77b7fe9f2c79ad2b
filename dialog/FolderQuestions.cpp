#include "dialog/FolderQuestions.h"

#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include "shell/ComPtr.h"
#include "shell/FolderPaths.h"

namespace knav {
namespace {

bool isOnDisk(ITEMIDLIST* list) {
    const CString path = pathOfFolder(list);
    return path.IsEmpty() || isPathThere(path);
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
