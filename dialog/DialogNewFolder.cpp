// Making a new folder, and letting the user name it.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/NavNames.h>
#include <platform/CMenu.h>

#include <set>

#include "dialog/CNavDialogImp.h"
#include "dialog/FolderQuestions.h"
#include "dialog/Messages.h"
#include "resources/ids.h"
#include "shell/FolderCalls.h"

namespace {

/// Names of the folder's items that contain `part`, or nothing when the folder cannot be enumerated.
std::optional<std::set<std::wstring>> namesContaining(IShellFolder* folder, HWND owner, const CString& part) {
    constexpr SHCONTF all = SHCONTF_FOLDERS | SHCONTF_NONFOLDERS | SHCONTF_INCLUDEHIDDEN;
    knav::ComPtr<IEnumIDList> items;
    if (!knav::enumerateItems(folder, owner, all, items)) {
        return std::nullopt;
    }
    std::set<std::wstring> names;
    while (const knav::ItemList item = knav::nextItem(items)) {
        CString name;
        if (NavGetItemNameInFolder(folder, item.get(), name) && name.Find(part) >= 0) {
            names.emplace(name.view());
        }
    }
    return names;
}

/// Only a menu that has been asked for its entries knows its verbs.
bool fillMenu(IContextMenu* menu) {
    CMenu entries;
    entries.CreatePopupMenu();
    const HMENU filled = entries.m_hMenu;
    return SUCCEEDED(knav::guarded([=] { return menu->QueryContextMenu(filled, 0, 1, 0x7FFF, CMF_NORMAL); }));
}

}  // namespace

CString CNavDialogImp::GetNewFolderNameToAdd() {
    const CString base = knav::messageText(IDS_KNAV_NEW_FOLDER_NAME);
    IShellFolder* folder = m_browser.GetCurrentFolder();
    const auto taken = folder ? namesContaining(folder, m_facade.GetSafeHwnd(), base) : std::nullopt;
    if (!taken) {
        return CString();
    }
    CString candidate = base;
    const int most = static_cast<int>(taken->size()) + 1;
    for (int n = 2; taken->contains(std::wstring(candidate.view())) && n <= most + 1; ++n) {
        candidate.Format(L"%s (%d)", base, n);
    }
    return candidate;
}

void CNavDialogImp::CmdNewFolder() {
    const CNavNode* node = currentFolderNode();
    if (!m_newFolderButton.IsWindowEnabled() || !node) {
        return;
    }
    if (node->GetType() == NavNodeExtensionRoot && node->IsFTPRoot()) {
        OnFTPConfig();
        return;
    }
    const knav::NetworkAnswers::Scope asked(m_ok.network);
    CString shown;
    GetCurrentFolderForPersistence(shown);
    if (!validateUNC(shown)) {
        return;
    }
    const CString name = GetNewFolderNameToAdd();
    if (name.IsEmpty()) {
        return;
    }
    // Another node now, perhaps: a login lets messages run.
    if (knav::isSite(currentFolderNode())) {
        CreateNewWebFolder(name);
    } else {
        createFolderOnDisk(name);
    }
}

void CNavDialogImp::createFolderOnDisk(const CString& name) {
    CNavPathname folder;
    CString path;
    const bool hasPath = selectedFolderPathname(folder) && folder.GetFullPath(path);
    const CString full = hasPath ? path.TrimRight(L'\\') + L"\\" + name : CString();
    if (full.IsEmpty() || !CreateDirectoryW(full, nullptr)) {
        knav::showMessage(m_facade, IDS_KNAV_NEW_FOLDER_FAILED, name);
        return;
    }
    SHChangeNotify(SHCNE_MKDIR, SHCNF_PATHW | SHCNF_FLUSH, full.GetString(), nullptr);
    renameWhenShown(name);
}

/// A namespace that can make folders has the verb for it on the menu of its background; it is told the name.
void CNavDialogImp::CreateNewWebFolder(const CString& name) {
    IShellFolder* folder = m_browser.GetCurrentFolder();
    const auto menu = knav::ComPtr<IContextMenu>::from([&](IContextMenu** made) {
        return folder->CreateViewObject(m_facade.GetSafeHwnd(), IID_IContextMenu, reinterpret_cast<void**>(made));
    });
    CMINVOKECOMMANDINFOEX invoke{};
    invoke.cbSize = sizeof invoke;
    invoke.fMask = CMIC_MASK_UNICODE;
    invoke.hwnd = m_facade.GetSafeHwnd();
    invoke.lpVerb = "NewFolder";
    invoke.lpVerbW = L"NewFolder";
    invoke.lpParametersW = name;
    invoke.nShow = SW_SHOWNORMAL;
    const bool made =
        menu && fillMenu(menu.get()) &&
        SUCCEEDED(knav::guarded([&] { return menu->InvokeCommand(reinterpret_cast<CMINVOKECOMMANDINFO*>(&invoke)); }));
    if (!made) {
        knav::showMessage(m_facade, IDS_KNAV_NEW_FOLDER_FAILED, name);
        return;
    }
    m_facade.Refresh();
    renameWhenShown(name);
}

/// Selects the new folder and lets the user type its name over the one it was made with. A view that has not heard of
/// it yet is refreshed; one that takes its time over that is asked again for a while, as long as the user selects
/// nothing else and stays in the same control.
void CNavDialogImp::renameWhenShown(const CString& name) {
    CNavDataArray nothing;
    m_browser.SyncToData(nothing);  // what is selected from now on is new
    if (beginRename(name)) {
        return;
    }
    m_browser.RefreshView();
    if (!beginRename(name)) {
        constexpr ULONGLONG kPatienceMs = 2000;
        m_newFolder = {name, GetTickCount64() + kPatienceMs, ::GetFocus()};
    }
}

void CNavDialogImp::renameNewFolder() {
    if (m_newFolder.name.IsEmpty()) {
        return;
    }
    const bool over = GetTickCount64() > m_newFolder.until || ::GetFocus() != m_newFolder.focus || selectedCount() > 0;
    if (over || beginRename(m_newFolder.name)) {
        m_newFolder = {};
    }
}

bool CNavDialogImp::beginRename(const CString& name) {
    IShellView* view = m_browser.GetCurrentShellView();
    const HWND list = m_listInUse->GetSafeHwnd();
    const auto item = view ? FindIdInCurrentFolder(name) : knav::ItemList();
    if (!item || !list) {
        return false;
    }
    const bool canRename =
        knav::attributesOf(m_browser.GetCurrentFolder(), item.get(), SFGAO_CANRENAME).value_or(0) != 0;
    ::SetFocus(list);
    constexpr UINT select = SVSI_SELECT | SVSI_DESELECTOTHERS | SVSI_FOCUSED | SVSI_ENSUREVISIBLE;
    const UINT how = canRename ? select | SVSI_EDIT : select;
    knav::guarded([&] { return view->SelectItem(item.get(), how); });
    // Views answer with success for an item that they do not show.
    return canRename ? ListView_GetEditControl(list) != nullptr : selectedCount() > 0;
}

knav::ItemList CNavDialogImp::FindIdInCurrentFolder(const CString& name) {
    // Some folders parse a pattern or a path as an item of theirs.
    const bool isName = name.view().find_first_of(L"*?\\/:") == std::wstring_view::npos;
    return isName ? knav::parseName(m_browser.GetCurrentFolder(), name) : knav::ItemList();
}
