// Keeping the view's selection, the result items and the file name field in step.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>
#include <knav/NavItemList.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/NameRules.h"
#include "dialog/ScopedFlag.h"
#include "resources/ids.h"
#include "shell/TextRules.h"

namespace {

/// One shortcut is not named in the field, which is left as it is.
bool isShortcut(const CNavDataArray& data) {
    const CNavPathname* path = data.GetCount() == 1 ? data.GetData(0)->GetPathname() : nullptr;
    return path && path->isShortCut();
}

}  // namespace

CNavFilter* CNavDialogImp::GetCurrentFileExtension(CString& extension) {
    extension = m_currentFilter->GetCount() > 0 ? m_currentFilter->GetAt(0) : CString();
    return m_currentFilter;
}

bool CNavDialogImp::multiSelectAllowed() const {
    return m_browser.GetMultiSelectAllowed() != 0;
}

CString CNavDialogImp::fileNameText() {
    CString text;
    if (m_fileName.GetSafeHwnd()) {
        m_fileName.GetWindowText(text);
    }
    return text;
}

void CNavDialogImp::setFileNameText(const CString& text) {
    if (m_fileName.GetSafeHwnd()) {
        const knav::ScopedFlag writing(m_writingFileName);
        m_fileName.SetWindowText(text);
    }
    m_nameCameFromSelection = false;
}

void CNavDialogImp::selectFileNameText() {
    if (m_fileName.GetSafeHwnd()) {
        m_fileName.SetEditSel(0, -1);
    }
}

void CNavDialogImp::refuseFileName() {
    selectFileNameText();
    if (m_fileName.GetSafeHwnd() && m_fileName.IsWindowVisible()) {
        m_fileName.SetFocus();
        selectFileNameText();
    }
}

void CNavDialogImp::SyncEditFieldToBrowser() {
    m_browser.SendSelectionToData(m_data);
    if (m_data.GetCount() == 0) {
        clearStaleName();
        return;
    }
    const knav::ScopedFlag writing(m_writingFileName);
    const CString before = fileNameText();
    m_fileName.SyncToData(m_data);
    // The name that is to be saved under stands: nobody means to save over what a shortcut leads to.
    m_fileName.SetFileNameComboBoxDirty(m_options.creatingFile && !fileNameText().IsEmpty() && isShortcut(m_data));
    SetFileNameEditDirty(0);
    m_nameCameFromSelection = m_nameCameFromSelection || before != fileNameText();
}

/// A name that only stood for the selection goes with it. What the user typed stays, and so does every name in a
/// dialog that saves: picking a file there is a way of typing its name. Where folders can be chosen by their names, one
/// that was left would be taken for a folder in the one shown.
void CNavDialogImp::clearStaleName() {
    const bool keepsNames = m_options.creatingFile && !FileDialogAllowReturnFolderEnabler::status();
    if (m_nameCameFromSelection && !m_fileNameEditDirty && !keepsNames) {
        setFileNameText(CString());
    }
}

void CNavDialogImp::SyncBrowserToEditField() {
    if (!m_browser.GetCurrentFolder() || !m_fileName.GetSafeHwnd()) {
        return;
    }
    CStringArray names;
    m_fileName.GetEditBoxStrings(names);
    CNavDataArray selection;
    for (int i = 0; i < names.GetSize(); ++i) {
        auto child = FindIdInCurrentFolder(names[i]);
        CNavData* item = child ? selection.AddData() : nullptr;
        if (item) {
            item->SetID(child.release());
        }
    }
    m_browser.SyncToData(selection);
    m_fileName.SetFileNameComboBoxDirty(0);
}

void CNavDialogImp::OnFileNameChange() {
    SetFileNameEditDirty(1);
    m_nameCameFromSelection = false;
}

void CNavDialogImp::OnFileNameSelectionChange() {
    OnFileNameChange();
}

/// Whoever goes on to the view after typing the name of an item in it finds that item there. What the user picks in the
/// view itself goes first.
void CNavDialogImp::showTypedName() {
    const HWND list = m_listInUse->GetSafeHwnd();
    const bool newFolderComes = !m_newFolder.name.IsEmpty();
    if (!list || ::GetFocus() != list || !m_fileNameEditDirty || selectedCount() > 0 || newFolderComes) {
        return;
    }
    const CString typed = fileNameText();
    const auto item = typed.IsEmpty() ? knav::ItemList() : FindIdInCurrentFolder(typed);
    if (IShellView* view = item ? m_browser.GetCurrentShellView() : nullptr) {
        knav::guarded([&] { return view->SelectItem(item.get(), SVSI_SELECT | SVSI_FOCUSED | SVSI_ENSUREVISIBLE); });
    }
}

void CNavDialogImp::useFileType(int index) {
    CNavFilter* filter = m_filters.GetData(index);
    m_fileTypeInUse = index;
    m_currentFilter = filter ? filter : &m_noFilter;
    m_browser.SetCurrentFilter(m_currentFilter);
}

void CNavDialogImp::OnFilterChange() {
    useFileType(GetFilterIndex());
    if (m_options.creatingFile) {
        updateExtensionForType();
    }
    if (m_browser.GetCurrentObjectID()) {
        m_browser.BrowseCurrentObject();
    }
    UpdateAutoCompletion();
}

/// A drawing that is to be saved as another type gets that type's extension at once, so that the user sees the name
/// that will be written. A name without an extension gets it on OK, and so do names in quotes.
void CNavDialogImp::updateExtensionForType() {
    CString name = fileNameText();
    if (!knav::extensionDot(name.view()) || knav::trimmed(name.view()).starts_with(L'"')) {
        return;
    }
    const CString before = name;
    m_facade.UpdateFileExtension(name, 1);
    if (name != before) {
        const bool dirty = m_fileNameEditDirty;
        setFileNameText(name);
        SetFileNameEditDirty(dirty);
        m_fileName.SetFileNameComboBoxDirty(1);
    }
}

int CNavDialogImp::selectedCount() const {
    const HWND list = m_listInUse->GetSafeHwnd();
    return list ? static_cast<int>(ListView_GetSelectedCount(list)) : 0;
}

void CNavDialogImp::UpdateUIState() {
    ITEMIDLIST* current = m_browser.GetCurrentObjectID();
    const CNavNode* node = currentFolderNode();
    const auto enable = [this](CWnd& control, bool on) {
        if (control.GetSafeHwnd() && control.IsWindowEnabled() != (on ? TRUE : FALSE)) {
            leaveIfFocused(control, on);
            control.EnableWindow(on);
        }
    };
    enable(m_backButton, m_previous.canGoBack() && !m_policies.noBackButton);
    enable(m_upButton, NavGetItemElementSize(current) > 0);
    const bool inHistory = m_currentPlace.CompareNoCase(L"History") == 0;
    enable(m_newFolderButton, !inHistory && node && (node->IsInFileSystem() || node->IsDropTarget() || node->IsFTP()));
    enable(m_deleteButton, selectedCount() > 0);
}

void CNavDialogImp::leaveIfFocused(CWnd& control, bool staysEnabled) {
    if (!staysEnabled && ::GetFocus() == control.GetSafeHwnd()) {
        m_facade.NextDlgCtrl();
    }
}

void CNavDialogImp::Refresh() {
    m_browser.RefreshView();
}
