// Moving values between the controls of a dialog and the members of its class, in DoDataExchange.
#pragma once

#include <platform/CWnd.h>

// The direction of one exchange, and its end by a refused value.
class ZOUI_API CDataExchange {
public:
    CDataExchange(CWnd* dialog, BOOL saveAndValidate) noexcept
        : m_pDlgWnd(dialog), m_bSaveAndValidate(saveAndValidate) {}

    // Thrown by Fail; UpdateData turns it into its answer 0.
    struct Refused {};

    // Gives the focus to the control with this id and ends the exchange.
    [[noreturn]] void Fail(UINT id);

    CWnd* m_pDlgWnd;
    BOOL m_bSaveAndValidate;  // TRUE: from the controls to the members
};

// Binds a control of the dialog to a member object, the first time the exchange runs. A control that the dialog does
// not have leaves the member without a window.
ZOUI_API void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

// The text of a control and the check state of a button.
ZOUI_API void DDX_Text(CDataExchange* exchange, int id, CString& text);
ZOUI_API void DDX_Check(CDataExchange* exchange, int id, int& checked);
