// What the buttons, the menu entries and the keys do.
#include <knav/CNavDataArray.h>
#include <knav/CNavNode.h>
#include <knav/NavFolders.h>
#include <knav/NavItemList.h>
#include <knav/NavNames.h>
#include <knav/NavViewMode.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/FolderQuestions.h"
#include "dialog/Messages.h"
#include "dialog/ScopedFlag.h"
#include "resources/ids.h"
#include "shell/Guard.h"

void CNavDialogImp::CmdPrevious() {
    // While a folder is on its way, a browse is put off and counts as done.
    if (m_inShellViewRegen || !m_backButton.IsWindowEnabled() || !m_previous.canGoBack()) {
        return;
    }
    const auto target = m_previous.previous();
    if (!knav::canBeShown(target.get()) || !NavigateToItemList(target.get())) {
        m_previous.forgetPrevious();
    } else {
        m_previous.wentBack();
        if (!m_previous.canGoBack()) {
            leaveIfFocused(m_backButton, false);
            m_backButton.EnableWindow(FALSE);
        }
    }
    SetPreviousTipText();
    m_facade.UpdateUIState();
}

void CNavDialogImp::SetPreviousTipText() {
    const auto previous = m_previous.previous();
    CString name;
    if (previous) {
        NavGetItemDisplayNameInDesktop(SHGDN_INFOLDER, previous.get(), name);
    }
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
    goOrTell(list.get());
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
    if (m_lookIn.GetSafeHwnd() && !m_lookIn.RefreshFolderInfo(1)) {
        SyncListToComboBox();
    }
}

/// In a dialog without a name field, which chooses folders, the view is what one types into.
void CNavDialogImp::OnFocusFileName() {
    CWnd& field = m_fileName.GetSafeHwnd() && m_fileName.IsWindowVisible() ? static_cast<CWnd&>(m_fileName)
                                                                           : static_cast<CWnd&>(*m_listInUse);
    if (field.GetSafeHwnd()) {
        field.SetFocus();
        selectFileNameText();
    }
}

void CNavDialogImp::OnFind() {
    m_facade.OnDoFind();
}

/// There is no dialog for the locations yet.
void CNavDialogImp::OnFTPConfig() {
}

void CNavDialogImp::AddToPlaces() {
    constexpr POINT kAtTheEnd{-1, -1};
    if (m_places.GetSafeHwnd() && !m_policies.noPlacesList && m_places.AddCurrentFolder(kAtTheEnd) >= 0) {
        UpdatePlacesListBox();
    }
}

void CNavDialogImp::OnLocate() {
    m_facade.OnDoLocate();
}

void CNavDialogImp::OnOpenMenuOpen() {
    m_facade.OnOK();
}

void CNavDialogImp::OnOpenMenuOpenReadOnly() {
    const knav::ScopedFlag readOnly(m_ok.readOnly);
    m_options.readOnlySpecified = 1;
    m_facade.OnOK();
    // Refused: it was this attempt that was to be read-only, not the next one.
    if (!m_ok.closing) {
        m_options.readOnlySpecified = 0;
    }
}

void CNavDialogImp::OnViewMode(UINT command) {
    const unsigned mode = command == IDM_KNAV_LIST      ? NavViewList
                          : command == IDM_KNAV_DETAILS ? NavViewDetails
                                                        : NavViewThumbnails;
    if (m_browser.GetViewMode() != mode) {
        m_browser.StoreViewMode(mode);
        m_browser.ApplyViewModeToList(mode);
    }
}
