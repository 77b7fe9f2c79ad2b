#include <knav/NavLinks.h>

#include <knav/NavFolders.h>
#include <knav/NavNames.h>
#include <platform/ScopedErrorMode.h>

#include "data/ApiEdge.h"
#include "shell/ComPtr.h"
#include "shell/FolderPaths.h"
#include "shell/Guard.h"
#include "shell/ItemList.h"

namespace {

// A path that is missing is no file either: it has every attribute.
bool isFile(const CString& path) {
    return !path.IsEmpty() && (GetFileAttributesW(path) & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

// The shortcut in the file that the list names; null when it is none.
knav::ComPtr<IShellLinkW> loadLink(ITEMIDLIST* list) {
    const CString path = knav::pathOfFolder(list);
    if (!isFile(path)) {
        return nullptr;  // no need to make a link object for it
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

bool isFolder(ITEMIDLIST* list) {
    return static_cast<bool>(knav::ComPtr<IShellFolder>::adopt(NavGetFolderFromDesktop(list)));
}

// A shortcut that was made from a path records a list that takes every target for a file: that of a folder cannot be
// bound. The list that the path has now can.
knav::ItemList folderMistakenForFile(ITEMIDLIST* recorded) {
    const CString path = knav::pathOfFolder(recorded);
    if (path.IsEmpty() || isFile(path) || isFolder(recorded)) {
        return {};
    }
    return knav::ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(path));
}

}  // namespace

ITEMIDLIST* NavResolveLink(ITEMIDLIST* list, int silent) {
    return knav::atApiEdge<ITEMIDLIST*>(nullptr, [=]() -> ITEMIDLIST* {
        const ScopedErrorMode quiet;
        const auto link = loadLink(list);
        const DWORD flags = silent == 0 ? SLR_NO_UI : 0;
        const bool resolved = link && SUCCEEDED(knav::guarded([&] { return link->Resolve(nullptr, flags); }));
        if (!resolved) {
            return nullptr;
        }
        auto recorded = knav::ItemList::adopt(targetOf(link));
        auto folder = folderMistakenForFile(recorded.get());
        return (folder ? folder : recorded).release();
    });
}

ITEMIDLIST* NavGetLinkIDList(ITEMIDLIST* list) {
    return knav::atApiEdge<ITEMIDLIST*>(nullptr, [=]() -> ITEMIDLIST* {
        const ScopedErrorMode quiet;
        const auto link = loadLink(list);
        return link ? targetOf(link) : nullptr;
    });
}
