#include <zoui/CZoUiListBox.h>

#include "zoui/RowTip.h"

IMPLEMENT_DYNAMIC(CZoUiListBox, CListBox)

CZoUiListBox::CZoUiListBox() : m_tip(std::make_unique<zoui::RowTip>()) {
}

CZoUiListBox::~CZoUiListBox() = default;

BOOL CZoUiListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (CListBox::OnChildNotify(message, wParam, lParam, result)) {
        return TRUE;
    }
    return message == WM_COMMAND && HIWORD(wParam) == LBN_SELCHANGE && NotifyChange(*this, LBN_SELCHANGE);
}

int CZoUiListBox::OnGetTipSupport() {
    return 0;
}

int CZoUiListBox::OnGetTipRect(const POINT& point, RECT& area) {
    const LRESULT answer = SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    const bool isOutside = HIWORD(answer) != 0;
    return !isOutside && SendMessage(LB_GETITEMRECT, LOWORD(answer), reinterpret_cast<LPARAM>(&area)) != LB_ERR;
}

int CZoUiListBox::OnGetTipText(const POINT&, CString&) {
    return 0;
}

void CZoUiListBox::updateTip(const POINT& point) {
    RECT area{};
    CString text;
    if (!OnGetTipRect(point, area) || !OnGetTipText(point, text)) {
        text.Empty();
    }
    m_tip->pointTo(m_hWnd, text.IsEmpty() ? RECT{} : area, std::wstring(text.view()));
}

LRESULT CZoUiListBox::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message >= WM_MOUSEFIRST && message <= WM_MBUTTONUP && OnGetTipSupport()) {
        if (message == WM_MOUSEMOVE) {
            updateTip({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        }
        m_tip->relay(m_hWnd, message, wParam, lParam);
    }
    return CListBox::WindowProc(message, wParam, lParam);
}
