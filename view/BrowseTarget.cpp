#include "view/BrowseTarget.h"

#include <knav/NavFolders.h>
#include <knav/NavLinks.h>
#include <knav/NavNames.h>

namespace knav {
namespace {

constexpr UINT kDirection = SBSP_RELATIVE | SBSP_PARENT;

BrowseTarget fromDesktop(ItemList id) {
    auto folder = ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(id.get()));
    return {std::move(id), std::move(folder), true};
}

}  // namespace

BrowseTarget findBrowseTarget(ITEMIDLIST* list, UINT flags, ITEMIDLIST* currentId, IShellFolder* currentFolder) {
    const auto resolved = ItemList::adopt(NavResolveLink(list, 0));
    ITEMIDLIST* const wanted = resolved ? resolved.get() : list;
    switch (flags & kDirection) {
        case SBSP_ABSOLUTE:
            return fromDesktop(ItemList::copyOf(wanted));
        case SBSP_PARENT:
            return fromDesktop(ItemList::parentOf(wanted != nullptr ? wanted : currentId));
        case SBSP_RELATIVE:
            return {ItemList::adopt(NavGetQualifiedItemList(CNavShell(), currentFolder, wanted)),
                    ComPtr<IShellFolder>::adopt(NavGetFolderFromItem(currentFolder, wanted)), false};
        default:
            return {};
    }
}

}  // namespace knav
