#include <zoui/CZoUiComboBox.h>

IMPLEMENT_DYNAMIC(CZoUiComboBox, CComboBox)

BOOL CZoUiComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (CComboBox::OnChildNotify(message, wParam, lParam, result)) {
        return TRUE;
    }
    const UINT code = HIWORD(wParam);
    const bool isChange = message == WM_COMMAND && (code == CBN_SELCHANGE || code == CBN_EDITCHANGE);
    return isChange && NotifyChange(*this, code);
}
