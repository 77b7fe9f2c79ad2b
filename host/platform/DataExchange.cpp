#include <platform/DataExchange.h>

void CDataExchange::Fail(UINT id) {
    if (const HWND control = ::GetDlgItem(SafeHwnd(m_pDlgWnd), static_cast<int>(id))) {
        ::SetFocus(control);
    }
    throw Refused{};
}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control) {
    if (control.m_hWnd == nullptr) {
        control.SubclassDlgItem(static_cast<UINT>(id), exchange->m_pDlgWnd);
    }
}

void DDX_Text(CDataExchange* exchange, int id, CString& text) {
    if (exchange->m_bSaveAndValidate) {
        exchange->m_pDlgWnd->GetDlgItemText(id, text);
    } else {
        exchange->m_pDlgWnd->SetDlgItemText(id, text);
    }
}

void DDX_Check(CDataExchange* exchange, int id, int& checked) {
    if (exchange->m_bSaveAndValidate) {
        checked = static_cast<int>(exchange->m_pDlgWnd->IsDlgButtonChecked(id));
    } else {
        exchange->m_pDlgWnd->CheckDlgButton(id, static_cast<UINT>(checked));
    }
}
