// Moving from folder to folder, and the history of it.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/NavFolders.h>
#include <knav/NavItemList.h>
#include <knav/NavNames.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/FolderQuestions.h"
#include "resources/ids.h"

namespace {

constexpr std::size_t kLongestHistory = 64;

}  // namespace

int CNavDialogImp::NavigateToFolder(const wchar_t* folder) {
    if (!folder || !*folder) {
        return 0;
    }
    if (CString(folder).CompareNoCase(L"Desktop") == 0) {
        const auto desktop = knav::ItemList::adopt(NavGetDesktopFolderItem(nullptr));
        return NavigateToItemList(desktop.get());
    }
    const auto list = knav::ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(folder));
    return list && NavigateToItemList(list.get());
}

bool CNavDialogImp::NavigateToItemList(ITEMIDLIST* folder) {
    return folder && m_browser.BrowseObject(folder, SBSP_ABSOLUTE);
}

bool CNavDialogImp::NavigateToDir(const CNavPathname& folder) {
    if (folder.GetID()) {
        return NavigateToItemList(folder.GetID());
    }
    CString path;
    return folder.GetFullPath(path) && NavigateToFolder(path);
}

void CNavDialogImp::NavigateToWildCard(const CNavPathname& pattern) {
    CString full;
    pattern.GetFullPath(full);
    const int separator = full.ReverseFind(L'\\');
    const CString patterns = full.Mid(separator + 1);
    m_wildcardFilter.SetDescription(patterns);
    m_wildcardFilter.RemoveAll();
    m_wildcardFilter.Add(patterns);
    m_currentFilter = &m_wildcardFilter;
    m_browser.SetCurrentFilter(m_currentFilter);

    CString current;
    GetCurrentFolderForPersistence(current);
    const CString folder = full.Left(separator + 1).TrimRight(L'\\');
    const bool elsewhere = separator > 0 && folder.CompareNoCase(CString(current).TrimRight(L'\\')) != 0;
    if (!elsewhere || !NavigateToFolder(full.Left(separator + 1))) {
        m_browser.BrowseCurrentObject();
    }
    UpdateAutoCompletion();
    setFileNameText(patterns);
    selectFileNameText();
}

void CNavDialogImp::SyncListToComboBox() {
    CNavNode* node = m_lookIn.GetSelectedNode();
    if (!node) {
        return;
    }
    const auto list = knav::ItemList::adopt(node->CalculateQualifiedItemList());
    NavigateToItemList(list.get());
}

void CNavDialogImp::SetFolderComboCurSel(int index) {
    if (m_lookIn.GetSafeHwnd() && index >= 0 && index < m_lookIn.GetCount()) {
        m_lookIn.SetCurSel(index);
        SyncListToComboBox();
    }
}

bool CNavDialogImp::enterBrowse() {
    if (m_inShellViewRegen) {
        return false;
    }
    m_inShellViewRegen = true;
    return true;
}

void CNavDialogImp::leaveBrowse() {
    m_inShellViewRegen = false;
}

void CNavDialogImp::browsed(ITEMIDLIST* folder, UINT) {
    // What was selected in the view that is gone is selected no more; what is under way in OK keeps its items.
    if (!m_inOk) {
        m_data.RemoveAllData();
    } else {
        m_fileName.SetFileNameComboBoxDirty(1);
    }
    showInLookIn(folder);
    AddItemToPrevious(folder);
    UpdateAutoCompletion();
    m_facade.OnFolderChange();
    m_facade.UpdateUIState();
}

void CNavDialogImp::showInLookIn(ITEMIDLIST* folder) {
    if (!m_lookIn.GetSafeHwnd()) {
        return;
    }
    CNavNode* node = m_lookIn.GetSelectedNode();
    const auto shown = knav::ItemList::adopt(node ? node->CalculateQualifiedItemList() : nullptr);
    if (shown && knav::sameFolder(shown.get(), folder)) {
        return;
    }
    if (const int index = m_lookIn.FillToFolder(folder); index >= 0) {
        m_lookIn.SetCurSel(index);
    } else {
        m_lookIn.SetCurSel(m_lookIn.FindItemByList(folder));
    }
}

void CNavDialogImp::OnFolderChange() {
    clearStaleName();
    UpdatePlacesListBox();
}

void CNavDialogImp::AddItemToPrevious(ITEMIDLIST* folder) {
    knav::ItemList entry = NavIsDesktop(folder) ? knav::ItemList() : knav::ItemList::copyOf(folder);
    const bool isHead =
        !m_previous.empty() &&
        (entry ? m_previous.front() && knav::sameFolder(m_previous.front().get(), entry.get()) : !m_previous.front());
    if (isHead) {
        return;
    }
    m_previous.push_front(std::move(entry));
    if (m_previous.size() > kLongestHistory) {
        m_previous.pop_back();
    }
    updateBackTip();
}

CNavNode* CNavDialogImp::currentFolderNode() const {
    return m_lookIn.GetSafeHwnd() ? m_lookIn.GetSelectedNode() : nullptr;
}

CNavNode* CNavDialogImp::lookInNode() const {
    return currentFolderNode();
}

bool CNavDialogImp::selectedFolderPathname(CNavPathname& folder) {
    return m_lookIn.GetSafeHwnd() && m_lookIn.GetPathname(folder);
}

int CNavDialogImp::GetPersonalFolderPath(CString& path) {
    path.Empty();
    const auto personal = knav::ItemList::adopt(NavGetSpecialFolderItem(nullptr, CSIDL_PERSONAL));
    wchar_t buffer[MAX_PATH];
    if (!personal || !SHGetPathFromIDListW(personal.get(), buffer)) {
        return 0;
    }
    path = buffer;
    return 1;
}

void CNavDialogImp::GetCurrentFolder(CString& name) {
    name.Empty();
    if (CNavNode* node = currentFolderNode()) {
        node->GetNameInFolder(name);
    }
}

void CNavDialogImp::GetCurrentFolderForPersistence(CString& folder) {
    folder.Empty();
    ITEMIDLIST* current = m_browser.GetCurrentObjectID();
    if (!current) {
        return;
    }
    if (NavIsDesktop(current)) {
        folder = L"Desktop";
        return;
    }
    NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, current, folder);
}
