// Shortcuts in the user's Favorites folder.
#include <knav/CNavDataArray.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include <filesystem>

#include "dialog/CNavDialogImp.h"
#include "resources/ids.h"
#include "shell/Guard.h"

namespace {

CString favoritesFolder() {
    const auto list = knav::ItemList::adopt(NavGetSpecialFolderItem(nullptr, CSIDL_FAVORITES));
    wchar_t path[MAX_PATH];
    return list && SHGetPathFromIDListW(list.get(), path) ? CString(path) : CString();
}

/// A shortcut's path in `folder` that is not taken: "name.lnk", "name (2).lnk" and so on.
CString freeShortcutPath(const CString& folder, CString name) {
    for (const wchar_t bad : std::wstring_view(L"\\/:*?\"<>|")) {
        name.Remove(bad);
    }
    CString path = folder + L"\\" + name + L".lnk";
    for (int n = 2; GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES; ++n) {
        path.Format(L"%s\\%s (%d).lnk", folder, name, n);
    }
    return path;
}

void addShortcut(ITEMIDLIST* target) {
    const CString folder = favoritesFolder();
    CString name;
    if (folder.IsEmpty() || !target ||
        !NavGetItemDisplayNameInDesktop(SHGDN_INFOLDER, knav::listArgument(target), name)) {
        return;
    }
    const auto link = knav::createInProcess<IShellLinkW>(CLSID_ShellLink);
    const auto file = link ? link.as<IPersistFile>() : nullptr;
    if (!file || FAILED(knav::guarded([&] { return link->SetIDList(target); }))) {
        return;
    }
    const CString path = freeShortcutPath(folder, name);
    if (SUCCEEDED(knav::guarded([&] { return file->Save(path, TRUE); }))) {
        SHChangeNotify(SHCNE_CREATE, SHCNF_PATHW, path.GetString(), nullptr);
    }
}

}  // namespace

void CNavDialogImp::OnAddFavorite(UINT command) {
    m_facade.OnDoAddToFavorites(static_cast<int>(command));
}

void CNavDialogImp::OnDoAddToFavorites(int command) {
    if (command == IDM_KNAV_FAVORITE_FOLDER) {
        addShortcut(m_browser.GetCurrentObjectID());
        return;
    }
    CNavDataArray selection;
    m_browser.SendSelectionToData(selection);
    for (int i = 0; i < selection.GetCount(); ++i) {
        if (const CNavData* item = selection.GetData(i)) {
            addShortcut(item->GetID());
        }
    }
}

void CNavDialogImp::OnDoFind() {
}
