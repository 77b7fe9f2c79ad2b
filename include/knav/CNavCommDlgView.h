#pragma once

#include <knav/export.h>
#include <platform/CWnd.h>

class CNavCommDlgBrowser;

/// Takes over the window of the shell's view while it is shown in a dialog: moves the keyboard focus on from it, keeps
/// the browser's view mode right when the view's own menu changed it, passes messages of the host framework on to the
/// dialog, and notices when the window goes. Owns nothing. User-interface thread only.
class KNAV_API CNavCommDlgView : public CWnd {
public:
    CNavCommDlgView() = default;

    CNavCommDlgBrowser* GetBrowser() const { return m_browser; }
    void SetBrowser(CNavCommDlgBrowser* browser) { m_browser = browser; }

    /// The dialog that receives what the host framework sends to the view; null: nobody.
    CWnd* GetZoUiParent() const { return m_zoUiParent; }
    void SetZoUiParent(CWnd* parent) { m_zoUiParent = parent; }

    /// Where Tab goes from the view: a window, or the control of that id in the view's parent. When that cannot take
    /// the focus, the control behind it in the tab order gets it.
    void SetTabNext(CWnd* next);
    void SetTabNext(UINT controlId);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnDestroy();
    void OnMeasureItem(int control, MEASUREITEMSTRUCT* item);
    BOOL PreTranslateMessage(MSG* message) override;
    LRESULT OnZoUiMessage(WPARAM wParam, LPARAM lParam);
    /// What becomes of a message of the host framework: the default hands it to the dialog.
    virtual LRESULT DoZoUiMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    HWND tabTarget() const;

    CNavCommDlgBrowser* m_browser = nullptr;
    CWnd* m_zoUiParent = nullptr;
    CWnd* m_tabNext = nullptr;
    UINT m_tabNextId = 0;
};
