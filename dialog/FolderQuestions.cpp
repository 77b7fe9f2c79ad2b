#include "dialog/FolderQuestions.h"

#include <knav/CNavNode.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>
#include <platform/CWaitCursor.h>
#include <ry/RyBackground.h>

#include "dialog/NetworkCheck.h"
#include "dialog/ResourceModule.h"
#include "shell/ComPtr.h"
#include "shell/FolderPaths.h"

namespace knav {
namespace {

/// A folder of the network counts as gone when it does not answer in time.
bool isThere(ITEMIDLIST* list) {
    const CString path = pathOfFolder(list);
    if (path.IsEmpty()) {
        return true;
    }
    if (!PathIsNetworkPathW(path)) {
        return isPathThere(path);
    }
    const CWaitCursor wait;
    return ryAskInTime<bool>(
               libraryModule(), [path] { return isPathThere(path); }, networkPatience())
        .value_or(false);
}

}  // namespace

bool sameFolder(ITEMIDLIST* a, ITEMIDLIST* b) {
    const auto desktop = ComPtr<IShellFolder>::adopt(NavGetDesktopFolder());
    return desktop && NavCompareFolderItems(desktop.get(), a, b) == 0;
}

bool isSite(const CNavNode* node) {
    return node && (node->IsExtensionType() || node->IsInternetType() || node->IsWebFoldersType());
}

bool canBeShown(ITEMIDLIST* list) {
    // Some systems bind to drives and folders that are not there.
    return list && isThere(list) && ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(list));
}

}  // namespace knav
