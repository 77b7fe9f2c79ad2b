// Moving from folder to folder, and the history of it.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/NavFolders.h>
#include <knav/NavItemList.h>
#include <knav/NavNames.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/DialogAccess.h"
#include "dialog/FolderQuestions.h"
#include "dialog/FolderTexts.h"
#include "dialog/Messages.h"
#include "resources/ids.h"
#include "shell/FolderPaths.h"

int CNavDialogImp::NavigateToFolder(const wchar_t* folder) {
    if (!folder || !*folder || !withinReach(folder)) {
        return 0;
    }
    if (knav::isDesktopKeyword(folder)) {
        const auto desktop = knav::ItemList::adopt(NavGetDesktopFolderItem(nullptr));
        return NavigateToItemList(desktop.get());
    }
    const auto list = knav::ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(folder));
    return list && NavigateToItemList(list.get());
}

bool CNavDialogImp::NavigateToItemList(ITEMIDLIST* folder) {
    return folder && m_browser.BrowseObject(folder, SBSP_ABSOLUTE);
}

/// For folders that the user picks from a list: one that is not there any more is told, and the list goes back.
bool CNavDialogImp::goOrTell(ITEMIDLIST* folder) {
    if (knav::canBeShown(folder) && NavigateToItemList(folder)) {
        return true;
    }
    restoreLookIn();
    CString name;
    if (!folder || !NavGetItemDisplayNameInDesktop(SHGDN_NORMAL, folder, name)) {
        return false;
    }
    knav::showMessage(m_facade, IDS_KNAV_FOLDER_NOT_SHOWN, name);
    return false;
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
    const bool elsewhere = pattern.WasAbsolute() && folder.CompareNoCase(CString(current).TrimRight(L'\\')) != 0;
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

void CNavDialogImp::followLookIn() {
    CNavNode* node = m_lookIn.GetSelectedNode();
    const auto list = knav::ItemList::adopt(node ? node->CalculateQualifiedItemList() : nullptr);
    if (list) {
        goOrTell(list.get());
    }
}

/// Selects the folder that the view shows, with as little reading as that takes.
void CNavDialogImp::restoreLookIn() {
    ITEMIDLIST* current = m_browser.GetCurrentObjectID();
    if (!current || !m_lookIn.GetSafeHwnd()) {
        return;
    }
    if (const int index = m_lookIn.FindItemByList(current); index >= 0) {
        m_lookIn.SetCurSel(index);
    } else {
        showInLookIn(current);
    }
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
    SetInShellViewRegen(1);
    return true;
}

void CNavDialogImp::leaveBrowse() {
    SetInShellViewRegen(0);
}

void CNavDialogImp::browsed(ITEMIDLIST* folder, UINT) {
    // What was selected in the view that is gone is selected no more; what is under way in OK keeps its items.
    m_newFolder = {};
    if (m_ok.running) {
        m_ok.moved = true;
    } else {
        m_data.RemoveAllData();
    }
    knav::nameView(m_listInUse->GetSafeHwnd(), m_facade.GetSafeHwnd());
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
    m_previous.add(folder);
    SetPreviousTipText();
}

ITEMIDLIST* CNavDialogImp::shownFolder() const {
    return m_browser.GetCurrentObjectID();
}

CNavNode* CNavDialogImp::currentFolderNode() const {
    return m_lookIn.GetSafeHwnd() ? m_lookIn.GetSelectedNode() : nullptr;
}

CNavNode* CNavDialogImp::lookInNode() const {
    return currentFolderNode();
}

/// False also for a folder on a server that has gone meanwhile: to make a path name is to ask the disk.
bool CNavDialogImp::selectedFolderPathname(CNavPathname& folder) {
    CString shown;
    GetCurrentFolderForPersistence(shown);
    if (knav::isDesktopKeyword(shown)) {
        shown = knav::pathOfSpecialFolder(CSIDL_DESKTOPDIRECTORY);
    }
    return m_lookIn.GetSafeHwnd() && withinReach(shown) && m_lookIn.GetPathname(folder);
}

int CNavDialogImp::GetPersonalFolderPath(CString& path) {
    path = knav::pathOfSpecialFolder(CSIDL_PERSONAL);
    return !path.IsEmpty();
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
        folder = knav::kDesktopKeyword;
        return;
    }
    NavGetItemDisplayNameInDesktop(SHGDN_FORPARSING, current, folder);
}
