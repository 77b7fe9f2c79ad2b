#include <knav/NavLinks.h>

#include <knav/NavNames.h>
#include <platform/ScopedErrorMode.h>

#include "data/ApiEdge.h"
#include "shell/ComPtr.h"
#include "shell/FolderPaths.h"
#include "shell/Guard.h"
#include "shell/ItemList.h"

namespace {

// The shortcut in the file that the list names; null when it is none.
knav::ComPtr<IShellLinkW> loadLink(ITEMIDLIST* list) {
    const ScopedErrorMode quiet;
    const CString path = knav::pathOfFolder(list);
    if (path.IsEmpty() || (GetFileAttributesW(path) & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return nullptr;  // a folder, or a file that is missing: no need to make a link object for it
    }
    auto link = knav::createInProcess<IShellLinkW>(CLSID_ShellLink);
    const auto file = link.as<IPersistFile>();
    const bool loaded = file && SUCCEEDED(knav::guarded([&] { return file->Load(path, 0); }));
    return loaded ? std::move(link) : nullptr;
}

ITEMIDLIST* targetOf(const knav::ComPtr<IShellLinkW>& link) {
    ITEMIDLIST* target = nullptr;
    return SUCCEEDED(knav::guarded([&] { return link->GetIDList(&target); })) ? target : nullptr;
}

}  // namespace

ITEMIDLIST* NavResolveLink(ITEMIDLIST* list, int silent) {
    return knav::atApiEdge<ITEMIDLIST*>(nullptr, [=]() -> ITEMIDLIST* {
        const auto link = loadLink(list);
        const DWORD flags = silent == 0 ? SLR_NO_UI : 0;
        const bool resolved = link && SUCCEEDED(knav::guarded([&] { return link->Resolve(nullptr, flags); }));
        if (!resolved) {
            return nullptr;
        }
        // A shortcut that was made from a path records a list that takes every target for a file: it cannot be bound.
        // The list that the path has now can.
        auto recorded = knav::ItemList::adopt(targetOf(link));
        auto present =
            knav::ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(knav::pathOfFolder(recorded.get())));
        return (present ? present : recorded).release();
    });
}

ITEMIDLIST* NavGetLinkIDList(ITEMIDLIST* list) {
    return knav::atApiEdge<ITEMIDLIST*>(nullptr, [=]() -> ITEMIDLIST* {
        const auto link = loadLink(list);
        return link ? targetOf(link) : nullptr;
    });
}
