#include <zoui/CZoUiTabPage.h>

IMPLEMENT_DYNAMIC(CZoUiTabPage, CZoUiBaseDialog)

CZoUiTabPage::CZoUiTabPage(UINT templateId, HINSTANCE module) : CZoUiBaseDialog(templateId, nullptr, module) {
}

BOOL CZoUiTabPage::OnLeave() {
    return UpdateData(TRUE);
}

// The keys of a dialog are the main dialog's business, whose default button Enter means.
BOOL CZoUiTabPage::PreTranslateMessage(MSG* message) {
    return CWnd::PreTranslateMessage(message);
}

void CZoUiTabPage::OnOK() {
    ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, IDOK, 0);
}

void CZoUiTabPage::OnCancel() {
    ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, IDCANCEL, 0);
}
