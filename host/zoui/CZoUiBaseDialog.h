// Base of the framework's dialogs: a name, controls that load themselves, notifications.
#pragma once

#include <platform/CDialog.h>
#include <zoui/ZoUiNotify.h>

class ZOUI_API CZoUiBaseDialog : public CDialog {
    DECLARE_DYNAMIC(CZoUiBaseDialog)
public:
    /// As CDialog: a null `module` looks the template up in the resource modules.
    explicit CZoUiBaseDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE module = nullptr);

    /// Runs the dialog with the themed versions of the common controls, whatever the program asked for.
    INT_PTR DoModal() override;

    /// The name under which the dialog's settings are kept. Default empty: nothing is remembered. It may change while
    /// the dialog runs.
    const CString& GetDialogName() const noexcept { return m_dialogName; }
    void GetDialogName(CString& name) const { name = m_dialogName; }
    void SetDialogName(const wchar_t* name) { m_dialogName = name; }

    /// The help file and the page in it that stand for the dialog; the framework only keeps them. Default empty.
    const CString& GetHelpFile() const noexcept { return m_helpFile; }
    void SetHelpFile(const wchar_t* file) { m_helpFile = file; }
    const CString& GetHelpTag() const noexcept { return m_helpTag; }
    void SetHelpTag(const wchar_t* tag) { m_helpTag = tag; }

    /// Lets a control of the framework restore its own state (CZoUiControl::OnAutoLoad), and makes this dialog its
    /// framework parent if it has none. Nonzero when the control did; 0 for a control without a window or of another
    /// kind.
    int AutoLoadControl(CWnd& control);

    /// What a control shows or holds has changed; `code` is its own notification code.
    virtual ZOUI_REPLY OnNotifyControlChange(unsigned int controlId, __int64 code);
    /// Any other notification; codes and parameters are agreed between sender and dialog.
    virtual ZOUI_REPLY OnNotifyGeneric(unsigned int code, __int64 parameter);

protected:
    DECLARE_MESSAGE_MAP()

private:
    LRESULT onZoUiNotify(WPARAM wParam, LPARAM lParam);

    CString m_dialogName;
    CString m_helpFile;
    CString m_helpTag;
};
