// A dialog made from a template, modal or not.
#pragma once

#include <platform/CWnd.h>
#include <platform/DataExchange.h>

// What DoModal answers when the dialog could not be made, or its window was destroyed by somebody else.
inline constexpr INT_PTR kDialogFailed = -1;

// The object outlives its window; it may be run again. DoModal must have returned before the object is deleted.
class ZOUI_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog() = default;
    // A template by id, from `module`, or where AfxFindResourceHandle finds it when that is null. The owner is the
    // top-level window of `parent`, or the thread's active window when that is null.
    explicit CDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE module = nullptr) noexcept;
    ~CDialog() override;

    // A template in memory instead, kept by the caller while the dialog runs. `module` is passed on to the controls.
    void InitModalIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent = nullptr) noexcept;

    // Runs the dialog with its own message loop and its owner disabled, and returns what EndDialog was given, or
    // kDialogFailed. Messages are offered to PreTranslateMessage first, from the window they are for up to the dialog;
    // while no message waits, the dialog gets WM_KICKIDLE. The owner's enabled state and the focus are put back. A quit
    // message ends the dialog and is posted again.
    virtual INT_PTR DoModal();
    // Ends DoModal, also from inside OnInitDialog; the window is destroyed when the loop has ended, not here.
    void EndDialog(INT_PTR result);

    // A modeless dialog. Override OnOK and OnCancel to call DestroyWindow.
    BOOL Create(UINT templateId, CWnd* parent = nullptr);
    BOOL CreateIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent = nullptr);

    UINT GetTemplateId() const noexcept { return m_templateId; }
    HINSTANCE GetTemplateModule() const noexcept { return m_module; }

    BOOL IsDialogMessage(MSG* message) { return ::IsDialogMessageW(m_hWnd, message); }
    void NextDlgCtrl() const { SendMessage(WM_NEXTDLGCTL, FALSE, FALSE); }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    // The window and its controls exist. TRUE: the system sets the focus to the first control. The base writes the
    // controls by UpdateData.
    virtual BOOL OnInitDialog();
    virtual void OnOK();      // reads the controls by UpdateData, then ends with IDOK
    virtual void OnCancel();  // ends with IDCANCEL

    // What EndDialog was given last; kDialogFailed before.
    INT_PTR GetResult() const noexcept { return m_result; }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    DECLARE_MESSAGE_MAP()

private:
    bool createWindow(const DLGTEMPLATE* dialogTemplate, HWND owner);
    const DLGTEMPLATE* findTemplate() noexcept;
    LRESULT initialise();
    void runModalLoop();
    bool running() const noexcept { return m_modal && m_hWnd != nullptr; }
    static INT_PTR CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    UINT m_templateId = 0;
    CWnd* m_parent = nullptr;
    HINSTANCE m_module = nullptr;
    const DLGTEMPLATE* m_template = nullptr;
    INT_PTR m_result = kDialogFailed;
    bool m_modal = false;  // the loop runs until this is false
};
