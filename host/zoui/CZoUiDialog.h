// A dialog that remembers: named values, and where its window was.
#pragma once

#include <zoui/CZoUiBaseDialog.h>

/// Values are kept for the current user under root key + "\" + the dialog's name. A dialog without a name reads
/// nothing and writes nothing. The position, and for a dialog with a sizing border the size, are written when it was
/// ended (EndDialog) with anything but IDCANCEL, and restored as soon as OnInitDialog has returned: fitted to the work
/// area of the monitor and to its dots per inch.
class ZOUI_API CZoUiDialog : public CZoUiBaseDialog {
    DECLARE_DYNAMIC(CZoUiDialog)
public:
    explicit CZoUiDialog(UINT templateId, CWnd* parent = nullptr, HINSTANCE module = nullptr);

    /// The stored value of that name. Nonzero on success; otherwise `value` is untouched: never stored, stored as
    /// another kind, or not readable.
    int GetDialogData(const CString& name, CString& value) const;
    int GetDialogData(const CString& name, unsigned long& value) const;
    /// Nonzero when stored.
    int SetDialogData(const CString& name, const CString& value);
    int SetDialogData(const CString& name, unsigned long value);
    /// Nonzero when there is no such value any more.
    int DelDialogData(const CString& name);

    /// The key below HKEY_CURRENT_USER in which this dialog's values are, or empty without a name. It ends with the
    /// dialog's name, unless that holds characters that cannot be in a key name: "\", "%" and control characters are
    /// written as "%" and four hexadecimal digits. A name of more than 200 characters is cut and told apart by a
    /// number.
    CString GetSettingsKey() const;

    /// The root key below HKEY_CURRENT_USER, of this dialog and of all dialogs that were given none of their own. The
    /// latter is "Software\Kelvara\Dialogs" until a host application sets its own.
    CString GetRootKey() const;
    void SetRootKey(const wchar_t* key) { m_rootKey = key; }
    static CString GetDefaultRootKey();
    static void SetDefaultRootKey(const wchar_t* key);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void savePlacement();
    void restorePlacement();

    CString m_rootKey;
};
