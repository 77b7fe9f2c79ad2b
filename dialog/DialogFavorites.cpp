// Shortcuts in the user's Favorites folder.
#include <knav/CNavDataArray.h>
#include <knav/NavFolders.h>
#include <knav/NavLinks.h>
#include <knav/NavNames.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/Messages.h"
#include "resources/ids.h"
#include "shell/FolderPaths.h"
#include "shell/Guard.h"

namespace {

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

bool saveShortcut(ITEMIDLIST* target, const CString& name) {
    const CString folder = knav::pathOfSpecialFolder(CSIDL_FAVORITES);
    const auto link = knav::createInProcess<IShellLinkW>(CLSID_ShellLink);
    const auto file = link ? link.as<IPersistFile>() : nullptr;
    if (folder.IsEmpty() || !file || FAILED(knav::guarded([&] { return link->SetIDList(target); }))) {
        return false;
    }
    const CString path = freeShortcutPath(folder, name);
    if (FAILED(knav::guarded([&] { return file->Save(path, TRUE); }))) {
        return false;
    }
    SHChangeNotify(SHCNE_CREATE, SHCNF_PATHW, path.GetString(), nullptr);
    return true;
}

/// A shortcut to a shortcut leads where that one leads.
void addShortcut(CWnd& owner, ITEMIDLIST* item) {
    CString name;
    if (!item || !NavGetItemDisplayNameInDesktop(SHGDN_NORMAL, knav::listArgument(item), name)) {
        return;
    }
    const auto target = knav::ItemList::adopt(NavResolveLink(item, 0));
    if (!saveShortcut(target ? target.get() : item, name)) {
        knav::showMessage(owner, IDS_KNAV_FAVORITE_FAILED, name);
    }
}

}  // namespace

void CNavDialogImp::OnAddFavorite(UINT command) {
    m_facade.OnDoAddToFavorites(static_cast<int>(command));
}

void CNavDialogImp::OnDoAddToFavorites(int command) {
    if (command == IDM_KNAV_FAVORITE_FOLDER) {
        addShortcut(m_facade, m_browser.GetCurrentObjectID());
        return;
    }
    CNavDataArray selection;
    m_browser.SendSelectionToData(selection);
    for (int i = 0; i < selection.GetCount(); ++i) {
        if (const CNavData* item = selection.GetData(i)) {
            addShortcut(m_facade, item->GetID());
        }
    }
}

void CNavDialogImp::OnDoFind() {
}
