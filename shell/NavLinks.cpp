#include <knav/NavLinks.h>

#include <knav/NavNames.h>

#include "shell/ComPtr.h"
#include "shell/Guard.h"
#include "shell/ItemList.h"
#include "shell/ListWalk.h"

namespace {

// The file system path of a list; false when it has none.
bool pathOf(ITEMIDLIST* list, wchar_t (&path)[MAX_PATH]) {
    return list != nullptr && knav::isWhole(list) &&
           knav::guardedTrue([&] { return SHGetPathFromIDListW(list, path); }) && path[0] != 0;
}

// The shortcut in the file that the list names; null when it is none.
knav::ComPtr<IShellLinkW> loadLink(ITEMIDLIST* list) {
    wchar_t path[MAX_PATH];
    if (!pathOf(list, path) || (GetFileAttributesW(path) & FILE_ATTRIBUTE_DIRECTORY) != 0) {
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
    const auto link = loadLink(list);
    const DWORD flags = silent == 0 ? SLR_NO_UI : 0;
    const bool resolved = link && SUCCEEDED(knav::guarded([&] { return link->Resolve(nullptr, flags); }));
    if (!resolved) {
        return nullptr;
    }
    // A shortcut that was made from a path records a list that takes every target for a file: it cannot be bound. The
    // list that the path has now can.
    knav::ItemList recorded = knav::ItemList::adopt(targetOf(link));
    wchar_t path[MAX_PATH];
    knav::ItemList present =
        knav::ItemList::adopt(pathOf(recorded.get(), path) ? NavGetQualifiedItemListFromFolderFullPath(path) : nullptr);
    return (present ? present : recorded).release();
}

ITEMIDLIST* NavGetLinkIDList(ITEMIDLIST* list) {
    const auto link = loadLink(list);
    return link ? targetOf(link) : nullptr;
}
