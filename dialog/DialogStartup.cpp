// What happens before the dialog is first painted, in this order.
#include <knav/CNavNode.h>
#include <knav/NavExtensions.h>
#include <knav/NavFolders.h>
#include <knav/NavItemList.h>
#include <knav/NavNames.h>
#include <knav/NavViewMode.h>
#include <ry/FileSystem.h>

#include <array>

#include "dialog/CNavDialogImp.h"
#include "dialog/DialogAccess.h"
#include "dialog/FolderQuestions.h"
#include "dialog/FolderTexts.h"
#include "dialog/Messages.h"
#include "dialog/NameRules.h"
#include "dialog/NavLayout.h"
#include "dialog/ResourceModule.h"
#include "resources/ids.h"

namespace {

constexpr DWORD kStartFolderRoom = 259;

void hide(CWnd& control) {
    if (control.GetSafeHwnd()) {
        control.EnableWindow(FALSE);
        control.ShowWindow(SW_HIDE);
    }
}

}  // namespace

void CNavDialogImp::InitializeDialogData() {
    NavUpdateShellCache();
    startName();
    if (m_options.foldersOnly) {
        startFoldersOnly();
    }
    if (!m_options.caption.IsEmpty()) {
        m_facade.SetWindowText(m_options.caption);
    }
    m_keys.begin();
    startViewMode();
    knav::applyPolicies(m_policies);
    startBrowserHost();
    startExtensions();
    const CString folder = initialFolderText();
    startFileTypes();
    startButtons();
    startFilter();
    m_appendCompletion = GetAutoCompleteRegValue();
    startLookIn();
    pushOptionsToControls();
    showInitialFolder(folder);
    SyncListToComboBox();
    showSomeFolder();
    if (!m_options.okButtonText.IsEmpty() && m_okButton.GetSafeHwnd()) {
        m_okButton.SetWindowText(m_options.okButtonText);
    }
    loadFileNameHistory();
    startFileName();
    m_okButton.SetZoUiParent(&m_facade);
    m_toolsButton.SetZoUiParent(&m_facade);
    m_viewsButton.SetZoUiParent(&m_facade);
    m_facade.UpdateUIState();
    m_placesListCustomized = false;
    startPlaces();
    startFocus();
}

void CNavDialogImp::startName() {
    if (m_facade.GetDialogName().IsEmpty() && !m_options.caption.IsEmpty()) {
        m_facade.SetDialogName(m_options.caption);
    }
}

void CNavDialogImp::startFoldersOnly() {
    m_options.readOnlyAllowed = 0;
    SetMultiSelectAllowed(0);
    m_options.toolsMenuItemsPresent &= ~static_cast<unsigned>(NavToolsFind | NavToolsLocate);
    m_policies.noFileMru = 1;
    m_policies.noRecentDocsHistory = 1;
}

void CNavDialogImp::startViewMode() {
    unsigned long mode = NavViewDetails;
    if (!m_facade.GetDialogData(L"ViewMode", mode)) {
        mode = NavViewDetails;
    }
    if (m_browser.GetViewMode() == mode) {
        return;
    }
    m_browser.StoreViewMode(mode);
    m_browser.ApplyViewModeToList(mode);
    m_browser.BrowseCurrentObject();
}

void CNavDialogImp::startBrowserHost() {
    m_browser.SetViewWindow(&m_viewWindow);
    m_browser.SetBuddyWindow(&m_buddy);
    m_browser.SetListCtrl(m_listInUse);
    m_browser.SetBrowseOwner(this);
    m_browser.SetViewOwnerWindow(&m_facade, this);
    m_browser.SetFoldersOnly(m_options.foldersOnly);
    m_viewWindow.SetZoUiParent(&m_facade);
    if (m_buddy.GetSafeHwnd()) {
        m_buddy.ShowWindow(SW_HIDE);
    }
}

void CNavDialogImp::startExtensions() {
    CString product;
    m_facade.GetProductName(product);
    NavInitializeExtensions(m_facade.GetSafeHwnd(), product);
}

CString CNavDialogImp::initialFolderText() {
    CString text = m_options.forceInitialFolder;
    if (text.IsEmpty() && !m_facade.GetDialogData(L"InitialDirectory", text)) {
        text = m_options.defaultInitialFolder;
    }
    if (text.IsEmpty()) {
        text = knav::currentDirectory(kStartFolderRoom);
    }
    const bool desktop = knav::isDesktopKeyword(text);
    const std::wstring replacement = Kelvara::Tessary::PAL::FileSystem::networkAwareChangeDir(text, desktop);
    return replacement.empty() ? text : CString(replacement);
}

void CNavDialogImp::startFileTypes() {
    if (m_options.foldersOnly) {
        hide(m_fileType);
        hide(m_fileTypeLabel);
    } else if (m_fileType.GetSafeHwnd()) {
        m_fileType.FillWithFilterArray(m_filters);
    }
}

/// A remembered or forced type that this dialog does not have leaves the one that the list shows.
void CNavDialogImp::startFilter() {
    SetFilterIndex(static_cast<int>(GetInitialFilterIndex()));
    if (m_currentFilter == &m_noFilter) {
        SetFilterIndex(GetFilterIndex());
    }
}

void CNavDialogImp::startButtons() {
    for (CNavBitmapButton* button : {&m_backButton, &m_upButton, &m_deleteButton, &m_webButton, &m_newFolderButton}) {
        if (button->GetSafeHwnd()) {
            m_facade.AutoLoadControl(*button);
        }
    }
    if (m_policies.noBackButton) {
        hide(m_backButton);
        m_layout.closeGap(IDC_KNAV_BACK);
    }
}

void CNavDialogImp::startLookIn() {
    if (!m_lookIn.GetSafeHwnd()) {
        return;
    }
    m_facade.AutoLoadControl(m_lookIn);
    RECT client{};  // the box is as high as its pictures now
    m_facade.GetClientRect(&client);
    m_layout.apply(client.right, client.bottom);
}

void CNavDialogImp::showInitialFolder(const CString& folder) {
    if (knav::isDesktopKeyword(folder)) {
        const auto desktop = knav::ItemList::adopt(NavGetDesktopFolderItem(m_facade.GetSafeHwnd()));
        showInitialList(desktop.get());
        return;
    }
    auto list = knav::ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(folder));
    for (const CString& fallback : {knav::executableFolder(), knav::windowsFolder()}) {
        if (knav::canBeShown(list.get())) {
            break;
        }
        SetCurrentDirectoryW(fallback);
        list = knav::ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(fallback));
    }
    showInitialList(list.get());
}

void CNavDialogImp::showInitialList(ITEMIDLIST* list) {
    if (!list) {
        return;
    }
    if (!m_lookIn.GetSafeHwnd()) {
        NavigateToItemList(list);  // nothing will follow a Look-in list that is not there
        return;
    }
    m_lookIn.SetCurSel(m_lookIn.FillToFolder(list));
    AddItemToPrevious(list);
}

/// The initial folder could be bound but not shown (it may be closed to the user): the dialog opens somewhere all the
/// same.
void CNavDialogImp::showSomeFolder() {
    for (const CString& fallback : {knav::executableFolder(), knav::windowsFolder()}) {
        if (m_browser.GetCurrentShellView() || !m_buddy.GetSafeHwnd() || NavigateToFolder(fallback)) {
            return;
        }
    }
}

void CNavDialogImp::startFileName() {
    if (m_options.foldersOnly) {
        hide(m_fileName);
        hide(m_fileNameLabel);
        m_layout.joinRows(IDOK, IDCANCEL);
        return;
    }
    if (!m_fileName.GetSafeHwnd()) {
        return;
    }
    m_fileName.LimitText(static_cast<int>(knav::kLongestPath));
    CString name;
    FindInitialFileName(name);
    setFileNameText(name);
    SyncBrowserToEditField();
}

void CNavDialogImp::FindInitialFileName(CString& name) {
    name = m_options.initialFileName;
    if (name.IsEmpty()) {
        return;
    }
    if (!knav::extensionDot(name.view())) {
        if (!m_options.defaultFileExtension.IsEmpty()) {
            name += L"." + m_options.defaultFileExtension;
        }
        return;
    }
    CString pattern;
    CNavFilter* filter = GetCurrentFileExtension(pattern);
    if (m_options.creatingFile && !filter->IsAllowed(name)) {
        name = knav::withExtensionOf(name.view(), pattern.view());
    }
}

void CNavDialogImp::startPlaces() {
    if (!m_places.GetSafeHwnd()) {
        return;
    }
    if (m_policies.noPlacesList) {
        hide(m_places);
        m_layout.closeColumn(IDC_KNAV_PLACES);
        return;
    }
    CString order;
    if (m_facade.GetAllDialogsData(L"PlacesOrder0", order)) {
        m_places.LoadFromOrder();
    } else {
        m_facade.AutoLoadControl(m_places);
    }
    for (int i = 0; i < m_places.GetCount(); ++i) {
        SetPlacesId(i);
    }
    UpdatePlacesListBox();
}

void CNavDialogImp::captureLayout() {
    m_layout.capture(m_facade.GetSafeHwnd(), knav::navLayoutRows(), IDC_KNAV_VIEW);
    m_layout.fitScreen();
}

void CNavDialogImp::startFocus() {
    CWnd& first = m_options.foldersOnly ? static_cast<CWnd&>(*m_listInUse) : m_fileName;
    if (first.GetSafeHwnd()) {
        first.SetFocus();
    }
    selectFileNameText();
}

/// What nobody can need before the dialog is there to be seen.
void CNavDialogImp::finishStart() {
    m_started = true;
    knav::nameControls(*this, m_facade.GetSafeHwnd());
    UpdateAutoCompletion();
    if (m_places.GetSafeHwnd() && !m_policies.noPlacesList) {
        m_places.RegisterDropTarget();
    }
}
