// What the buttons, the menu entries and the keys do.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/NavFolders.h>
#include <knav/NavItemList.h>
#include <knav/NavNames.h>

#include <set>

#include "dialog/CNavDialogImp.h"
#include "dialog/Messages.h"
#include "resources/ids.h"
#include "shell/Guard.h"

namespace {

/// Names of the folder's items that contain `part`, or nothing when the folder cannot be enumerated.
std::optional<std::set<std::wstring>> namesContaining(IShellFolder* folder, HWND owner, const CString& part) {
    const auto items = knav::ComPtr<IEnumIDList>::from(
        [&](IEnumIDList** list) { return folder->EnumObjects(owner, SHCONTF_FOLDERS | SHCONTF_NONFOLDERS, list); });
    if (!items) {
        return std::nullopt;
    }
    std::set<std::wstring> names;
    while (true) {
        ITEMIDLIST* raw = nullptr;
        if (knav::guarded([&] { return items->Next(1, &raw, nullptr); }) != S_OK) {
            return names;
        }
        const auto item = knav::ItemList::adopt(raw);
        CString name;
        if (NavGetItemNameInFolder(folder, item.get(), name) && name.Find(part) >= 0) {
            names.emplace(name.view());
        }
    }
}

}  // namespace

void CNavDialogImp::CmdPrevious() {
    if (!m_backButton.IsWindowEnabled() || m_previous.size() < 2) {
        return;
    }
    auto target = m_previous[1] ? knav::ItemList::copyOf(m_previous[1].get())
                                : knav::ItemList::adopt(NavGetDesktopFolderItem(nullptr));
    const bool wasTwo = m_previous.size() == 2;
    if (!NavigateToItemList(target.get())) {
        m_previous.erase(m_previous.begin() + 1);
    } else {
        // The navigation has put the folder at the head again; the two entries below it are what was left.
        m_previous.erase(m_previous.begin(), m_previous.begin() + 2);
        if (wasTwo) {
            leaveIfFocused(m_backButton, false);
            m_backButton.EnableWindow(FALSE);
        }
    }
    updateBackTip();
    m_facade.UpdateUIState();
}

void CNavDialogImp::updateBackTip() {
    if (m_previous.size() < 2) {
        m_backButton.SetTipText(knav::messageText(IDS_KNAV_TIP_BACK));
        return;
    }
    auto desktop = knav::ItemList::adopt(m_previous[1] ? nullptr : NavGetDesktopFolderItem(nullptr));
    CString name;
    NavGetItemDisplayNameInDesktop(SHGDN_INFOLDER, desktop ? desktop.get() : m_previous[1].get(), name);
    m_backButton.SetTipText(name.IsEmpty() ? knav::messageText(IDS_KNAV_TIP_BACK)
                                           : knav::messageText(IDS_KNAV_TIP_BACK_TO, name));
}

void CNavDialogImp::CmdUpOneDir() {
    if (!m_upButton.GetSafeHwnd() || !m_upButton.IsWindowEnabled() || !m_lookIn.GetSafeHwnd()) {
        return;
    }
    CNavNode* parent = m_lookIn.GetNode(m_lookIn.FindParentItemIndex(m_lookIn.GetCurSel()));
    if (!parent) {
        return;
    }
    const auto list = knav::ItemList::adopt(parent->CalculateQualifiedItemList());
    NavigateToItemList(list.get());
}

void CNavDialogImp::CmdDelete() {
    IShellView* view = m_browser.GetCurrentShellView();
    const HWND list = m_listInUse->GetSafeHwnd();
    if (!m_deleteButton.IsWindowEnabled() || !view || !list) {
        return;
    }
    ::SetFocus(list);
    MSG key{};
    key.hwnd = list;
    key.message = WM_KEYDOWN;
    key.wParam = VK_DELETE;
    if (knav::guarded([&] { return view->TranslateAccelerator(&key); }) != S_OK) {
        ::SendMessageW(list, WM_KEYDOWN, VK_DELETE, 0);
    }
}

void CNavDialogImp::CmdWeb() {
    if (!m_webButton.GetSafeHwnd() || !m_webButton.IsWindowEnabled()) {
        return;
    }
    CString cleanCaption;
    CString storedCaption;
    m_facade.GetOkButtonText(cleanCaption, 0);
    m_facade.GetOkButtonText(storedCaption, 1);
    CString title;
    if (!m_options.noUrlFileTransfer) {
        title = knav::messageText(IDS_KNAV_WEB_TITLE) + cleanCaption;
    }
    CString start;
    m_facade.GetDefaultBrowserStartURL(start);
    CString chosen;
    if (m_facade.LaunchBrowserDialog(chosen, title, storedCaption, start)) {
        setFileNameText(chosen);
        m_fileName.SendFileNameToData(m_data);
        m_facade.OnOK();
    }
}

void CNavDialogImp::OpenFolderCombo() {
    if (m_lookIn.GetSafeHwnd()) {
        m_lookIn.SetFocus();
        m_lookIn.ShowDropDown(TRUE);
    }
}

void CNavDialogImp::OnRefresh() {
    m_facade.Refresh();
}

void CNavDialogImp::OnLocate() {
    m_facade.OnDoLocate();
}

void CNavDialogImp::OnOpenMenuOpen() {
    m_options.readOnlySpecified = 0;
    m_facade.OnOK();
}

void CNavDialogImp::OnOpenMenuOpenReadOnly() {
    m_options.readOnlySpecified = 1;
    m_facade.OnOK();
    // Refused: it was this attempt that was to be read-only, not the next one.
    if (!m_closing) {
        m_options.readOnlySpecified = 0;
    }
}

void CNavDialogImp::OnViewMode(UINT command) {
    const unsigned mode = command == IDM_KNAV_LIST ? 3 : command == IDM_KNAV_DETAILS ? 4 : 5;
    if (m_browser.GetViewMode() != mode) {
        m_browser.StoreViewMode(mode);
        m_browser.ApplyViewModeToList(mode);
    }
}

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
    CNavPathname folder;
    CString path;
    if (!m_newFolderButton.IsWindowEnabled() || !selectedFolderPathname(folder) || !folder.GetFullPath(path)) {
        return;
    }
    const CString name = GetNewFolderNameToAdd();
    if (name.IsEmpty()) {
        return;
    }
    const CString full = CString(path).TrimRight(L'\\') + L"\\" + name;
    if (!CreateDirectoryW(full, nullptr)) {
        knav::showMessage(IDS_KNAV_NEW_FOLDER_FAILED, name);
        return;
    }
    SHChangeNotify(SHCNE_MKDIR, SHCNF_PATHW | SHCNF_FLUSH, full.GetString(), nullptr);
    renameWhenShown(name);
}

/// Selects the new folder and lets the user type its name over the one it was made with.
void CNavDialogImp::renameWhenShown(const CString& name) {
    IShellView* view = m_browser.GetCurrentShellView();
    const auto item = view ? findInCurrentFolder(name) : knav::ItemList();
    if (!item) {
        return;
    }
    ::SetFocus(m_listInUse->GetSafeHwnd());
    constexpr UINT how = SVSI_SELECT | SVSI_DESELECTOTHERS | SVSI_FOCUSED | SVSI_ENSUREVISIBLE | SVSI_EDIT;
    if (FAILED(knav::guarded([&] { return view->SelectItem(item.get(), how); }))) {
        m_facade.Refresh();
        knav::guarded([&] { return view->SelectItem(item.get(), how); });
    }
}

knav::ItemList CNavDialogImp::findInCurrentFolder(const CString& name) {
    IShellFolder* folder = m_browser.GetCurrentFolder();
    std::wstring text(name.view());
    ITEMIDLIST* found = nullptr;
    if (folder) {
        knav::guarded(
            [&] { return folder->ParseDisplayName(nullptr, nullptr, text.data(), nullptr, &found, nullptr); });
    }
    return knav::ItemList::adopt(found);
}
