#include <knav/NavFolders.h>

#include <knav/CNavExtension.h>
#include <knav/NavNames.h>

#include "shell/ExtensionItems.h"
#include "shell/FolderCalls.h"
#include "shell/ListWalk.h"

namespace {

// The folder of a special location without an owner window.
IShellFolder* specialFolder(int csidl) {
    const auto list = knav::ItemList::adopt(NavGetSpecialFolderItem(nullptr, csidl));
    return list ? NavGetFolderFromDesktop(list.get()) : nullptr;
}

bool isSpecialFolder(ITEMIDLIST* list, int csidl) {
    const auto desktop = knav::desktopFolder();
    const auto special = knav::ItemList::adopt(NavGetSpecialFolderItem(nullptr, csidl));
    // To compare two items of its own takes the desktop longer than all the rest, even when they are the same.
    return knav::areSameBytes(list, special.get()) || NavCompareFolderItems(desktop.get(), list, special.get()) == 0;
}

}  // namespace

ITEMIDLIST* NavGetSpecialFolderItem(HWND owner, int csidl) {
    ITEMIDLIST* list = nullptr;
    return SUCCEEDED(knav::guarded([&] { return SHGetSpecialFolderLocation(owner, csidl, &list); })) ? list : nullptr;
}

ITEMIDLIST* NavGetDesktopFolderItem(HWND owner) {
    return NavGetSpecialFolderItem(owner, CSIDL_DESKTOP);
}

ITEMIDLIST* NavGetDrivesFolderItem(HWND owner) {
    return NavGetSpecialFolderItem(owner, CSIDL_DRIVES);
}

IShellFolder* NavGetDesktopFolder() {
    return knav::desktopFolder().release();
}

IShellFolder* NavGetFolderFromItem(IShellFolder* parent, ITEMIDLIST* list) {
    switch (knav::extensionItemKind(list)) {
        case knav::ExtensionItem::Root: {
            CNavExtension* const extension = NavFindExtensionForItem(list);
            return extension != nullptr ? extension->FetchRootFolder() : nullptr;
        }
        case knav::ExtensionItem::Child:
            return NavGetFolderFromExtensionItem(list);
        case knav::ExtensionItem::None:
            break;
    }
    if (parent == nullptr || list == nullptr) {
        return nullptr;
    }
    auto folder = knav::bindFolder(parent, list);
    return (folder ? std::move(folder) : knav::uiObjectOf<IShellFolder>(parent, list)).release();
}

IShellFolder* NavGetFolderFromDesktop(ITEMIDLIST* list) {
    auto desktop = knav::desktopFolder();
    if (!desktop) {
        return nullptr;
    }
    IShellFolder* const folder = NavGetFolderFromItem(desktop.get(), list);
    const bool isEmptyList = list != nullptr && knav::elementSize(list) == 0;
    return folder == nullptr && isEmptyList ? desktop.release() : folder;
}

IShellFolder* NavGetDrivesFolder() {
    return specialFolder(CSIDL_DRIVES);
}

IShellFolder* NavGetInternetRootFolder() {
    return specialFolder(CSIDL_INTERNET);
}

void NavReleaseFolder(IShellFolder* folder) {
    knav::ComPtr<IShellFolder>::adopt(folder).reset();
}

int NavIsDesktop(ITEMIDLIST* list) {
    return list != nullptr && (knav::elementSize(list) == 0 || isSpecialFolder(list, CSIDL_DESKTOP));
}

int NavIsDrives(ITEMIDLIST* list) {
    return isSpecialFolder(list, CSIDL_DRIVES);
}

int NavIsNetwork(ITEMIDLIST* list) {
    return isSpecialFolder(list, CSIDL_NETWORK);
}

int NavIsInternetRoot(ITEMIDLIST* list) {
    return isSpecialFolder(list, CSIDL_INTERNET);
}

HIMAGELIST NavGetSystemImageList() {
    SHFILEINFOW info{};
    return reinterpret_cast<HIMAGELIST>(
        SHGetFileInfoW(L"C:\\", 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_SMALLICON));
}

void NavUpdateShellCache() {
    const auto desktop = knav::desktopFolder();
    const auto list = knav::ItemList::adopt(NavGetDrivesFolderItem(nullptr));
    const auto drives = knav::ComPtr<IShellFolder>::adopt(NavGetFolderFromItem(desktop.get(), list.get()));
    if (drives) {
        DWORD attributes = SFGAO_VALIDATE;
        knav::guarded([&] { return drives->GetAttributesOf(0, nullptr, &attributes); });
    }
}
