#pragma once

#include <vector>

#include <zoui/CZoUiDialog.h>

class CZoUiTabPage;

/// A dialog with pages behind the tabs of a tab control that its template holds. The user changes pages with the tabs,
/// Ctrl+Tab, Ctrl+Page Up and Ctrl+Page Down.
class ZOUI_API CZoUiTabMainDialog : public CZoUiDialog {
    DECLARE_DYNAMIC(CZoUiTabMainDialog)
public:
    CZoUiTabMainDialog(UINT templateId, UINT tabControlId, CWnd* parent = nullptr, HINSTANCE module = nullptr);

    /// Adds a page behind the others; call it in OnInitDialog. The first one comes to the front. The page is made from
    /// its template unless it has its window already, as a child of this dialog. It is not owned and outlives the
    /// window. The page's index, or -1 when its window cannot be made.
    int AddPage(CZoUiTabPage& page, const wchar_t* title);

    /// Index of the page in front; -1 without pages.
    int GetActivePage() const noexcept { return m_active; }
    /// Brings a page to the front, unless the one in front refuses to be left. Nonzero when it is in front.
    BOOL SetActivePage(int index);
    /// Puts the pages where the tab control is now; call it after moving or sizing that.
    void LayOutPages();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    /// Asks every page with OnLeave first; a page that refuses comes to the front, and the dialog stays open.
    void OnOK() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    void PostNcDestroy() override;

private:
    LRESULT askTabs(UINT message, WPARAM wParam, LPARAM lParam) const;
    void show(int index);

    UINT m_tabControlId;
    std::vector<CZoUiTabPage*> m_pages;
    int m_active = -1;
};
