#include <knav/CNavComboBox.h>

BOOL CNavComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    return (m_flags & PlainChildNotify) != 0 ? CWnd::OnChildNotify(message, wParam, lParam, result)
                                             : CZoUiComboBox::OnChildNotify(message, wParam, lParam, result);
}
