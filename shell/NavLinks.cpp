#include <knav/NavLinks.h>

#include "shell/ComPtr.h"
#include "shell/Guard.h"
#include "shell/ItemList.h"
#include "shell/ListWalk.h"

namespace {

// The shortcut in the file that the list names; null when it is none.
knav::ComPtr<IShellLinkW> loadLink(ITEMIDLIST* list) {
    wchar_t path[MAX_PATH];
    const bool hasPath = list != nullptr && knav::isWhole(list) &&
                         knav::guardedTrue([&] { return SHGetPathFromIDListW(list, path); }) && path[0] != 0;
    if (!hasPath) {
        return nullptr;
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
    return resolved ? targetOf(link) : nullptr;
}

ITEMIDLIST* NavGetLinkIDList(ITEMIDLIST* list) {
    const auto link = loadLink(list);
    return link ? targetOf(link) : nullptr;
}
