#pragma once

#include <knav/export.h>
#include <zoui/CZoUiListCtrl.h>

class CNavCommDlgBrowser;

/// Takes over the list inside the shell's view. A host may hand its own derived object to
/// CNavDialog::SetFolderListCtrl. User-interface thread only.
class KNAV_API CNavListCtrl : public CZoUiListCtrl {
public:
    CNavListCtrl() = default;

    /// The browser whose view holds the list; not owned. Set by the browser.
    CNavCommDlgBrowser* GetBrowser() const { return m_browser; }
    void SetBrowser(CNavCommDlgBrowser* browser) { m_browser = browser; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    CNavCommDlgBrowser* m_browser = nullptr;
};
