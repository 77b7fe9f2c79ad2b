#include "shell/SpecialItems.h"

#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include "data/ApiEdge.h"
#include "shell/FolderCalls.h"
#include "shell/ListWalk.h"

namespace {

constexpr CLSID kWebFolders = {0xBDEADF00, 0xC265, 0x11D0, {0xBC, 0xED, 0x00, 0xA0, 0xC9, 0x0A, 0xB5, 0x0F}};

bool isWebFoldersName(const CString& name) {
    struct Freed {
        OLECHAR* text = nullptr;
        ~Freed() { CoTaskMemFree(text); }
    } identifier;
    if (FAILED(StringFromCLSID(kWebFolders, &identifier.text))) {
        return false;
    }
    // Folders differ in how they write identifiers: upper and lower case mean the same.
    return StrStrIW(name, identifier.text) != nullptr || name.view().starts_with(L"Web Folders");
}

}  // namespace

int NavIsInternetSiteItem(ITEMIDLIST* list) {
    if (knav::nextElement(list) == nullptr) {
        return 0;
    }
    const auto root = knav::ItemList::firstOf(list);
    return root && NavIsInternetRoot(root.get());
}

bool knav::isWebFoldersInDrives(ITEMIDLIST* list) noexcept {
    const auto item = knav::ItemList::firstOf(list);
    const auto drives = knav::ComPtr<IShellFolder>::adopt(item ? NavGetDrivesFolder() : nullptr);
    return item && knav::atApiEdge(false, [&] {
               CString name;
               return NavGetItemNameForParsing(drives.get(), item.get(), name) && isWebFoldersName(name);
           });
}

int NavIsWebFoldersItem(ITEMIDLIST* list) {
    ITEMIDLIST* const item = NavGetNextItemElement(list);
    const auto root = item != nullptr ? knav::ItemList::firstOf(list) : knav::ItemList();
    return root && NavIsDrives(root.get()) && knav::isWebFoldersInDrives(item);
}
