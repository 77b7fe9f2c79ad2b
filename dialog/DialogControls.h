// The controls of the dialog.
#pragma once

#include <knav/CNavBitmapButton.h>
#include <knav/CNavComboButton.h>
#include <knav/CNavCommDlgBrowser.h>
#include <knav/CNavCommDlgBuddy.h>
#include <knav/CNavCommDlgView.h>
#include <knav/CNavFileNameComboBox.h>
#include <knav/CNavFilterComboBox.h>
#include <knav/CNavFolderComboBox.h>
#include <knav/CNavListBox.h>
#include <knav/CNavListCtrl.h>
#include <knav/CNavToolsButton.h>
#include <platform/CButton.h>
#include <platform/CStatic.h>
#include <platform/OleScope.h>

#include <optional>

namespace knav {

/// A base of the dialog, so that its sources name its controls without a detour. Controls that the dialog's template
/// does not have have no window.
struct DialogControls {
    std::optional<zoui::OleScope> m_ole;  // ends after the folders and views that the controls hold

    CNavCommDlgBrowser m_browser;
    CNavCommDlgBuddy m_buddy;
    CNavCommDlgView m_viewWindow;
    CNavListCtrl m_listCtrl;
    CNavListCtrl* m_listInUse = &m_listCtrl;  // or the host's own
    CNavListBox m_places;
    CStatic m_placesLabel;
    CNavFolderComboBox m_lookIn;
    CStatic m_lookInLabel;
    CNavFileNameComboBox m_fileName;
    CStatic m_fileNameLabel;
    CNavFilterComboBox m_fileType;
    CStatic m_fileTypeLabel;
    CNavBitmapButton m_backButton;
    CNavBitmapButton m_upButton;
    CNavBitmapButton m_webButton;
    CNavBitmapButton m_refreshButton;
    CNavBitmapButton m_deleteButton;
    CNavBitmapButton m_newFolderButton;
    CNavToolsButton m_toolsButton;
    CNavToolsButton m_viewsButton;
    CNavComboButton m_okButton;
    CButton m_cancelButton;
};

}  // namespace knav
