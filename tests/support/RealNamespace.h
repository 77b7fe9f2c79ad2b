// Items of the system's own namespace, found with the system's own functions.
#pragma once

#include <gtest/gtest.h>

#include "shell/ComPtr.h"
#include "support/ItemLists.h"
#include "support/ScopedTempFolder.h"

namespace knav::test {

inline ItemList parsed(const wchar_t* path) {
    ITEMIDLIST* list = nullptr;
    return SUCCEEDED(SHParseDisplayName(path, nullptr, &list, 0, nullptr)) ? ItemList::adopt(list) : ItemList();
}

inline ItemList special(int csidl) {
    ITEMIDLIST* list = nullptr;
    return SUCCEEDED(SHGetSpecialFolderLocation(nullptr, csidl, &list)) ? ItemList::adopt(list) : ItemList();
}

inline bool isSame(const ItemList& a, const ItemList& b) {
    return a && b && ILIsEqual(a.get(), b.get());
}

/// Where the folder itself says that it is; null when it does not say.
inline ItemList placeOf(IShellFolder* folder) {
    const auto place = ComPtr<IShellFolder>::retain(folder).as<IPersistFolder2>();
    ITEMIDLIST* list = nullptr;
    return place && SUCCEEDED(place->GetCurFolder(&list)) ? ItemList::adopt(list) : ItemList();
}

/// A child item and its folder, as the system splits a qualified list.
struct Child {
    const ITEMIDLIST* list = nullptr;
    ComPtr<IShellFolder> folder;

    explicit Child(const ItemList& qualified)
        : folder(ComPtr<IShellFolder>::from([&](IShellFolder** result) {
              return SHBindToParent(qualified.get(), IID_IShellFolder, reinterpret_cast<void**>(result), &list);
          })) {}
};

/// Makes a shortcut file that leads to a path or to a list, and returns its path.
inline CString addShortcut(const ScopedTempFolder& folder, const wchar_t* name, const CString& target,
                           const ITEMIDLIST* list = nullptr) {
    const CString path = folder.path(name);
    const auto link = createInProcess<IShellLinkW>(CLSID_ShellLink);
    const auto file = link.as<IPersistFile>();
    const HRESULT set = list != nullptr ? link->SetIDList(list) : link->SetPath(target);
    EXPECT_TRUE(file && SUCCEEDED(set) && SUCCEEDED(file->Save(path, TRUE)));
    return path;
}

}  // namespace knav::test
