#include <knav/CNavCommDlgView.h>

#include "view/BrowserState.h"
#include "view/ViewTakeover.h"

#include <knav/CNavCommDlgBrowser.h>
#include <knav/CNavListCtrl.h>

#include <zoui/ZoUiNotify.h>
#include <typeinfo>

BEGIN_MESSAGE_MAP(CNavCommDlgView, CWnd)
ON_WM_DESTROY()
ON_WM_MEASUREITEM()
ON_REGISTERED_MESSAGE(WM_ZOUI_NOTIFY, &CNavCommDlgView::OnZoUiMessage)
END_MESSAGE_MAP()

// The list tells the view of every row it gets, changes and loses. Only a class that a host derived from the list
// control could want to see that before the view.
LRESULT CNavCommDlgView::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const CNavListCtrl* const list = m_browser != nullptr ? m_browser->GetListCtrl() : nullptr;
    const bool fromPlainList = message == WM_NOTIFY && list != nullptr && list->m_hWnd != nullptr &&
                               reinterpret_cast<const NMHDR*>(lParam)->hwndFrom == list->m_hWnd &&
                               typeid(*list) == typeid(CNavListCtrl);
    return fromPlainList ? DefWindowProc(message, wParam, lParam) : CWnd::WindowProc(message, wParam, lParam);
}

void CNavCommDlgView::SetTabNext(CWnd* next) {
    m_tabNext = next;
    m_tabNextId = 0;
}

void CNavCommDlgView::SetTabNext(UINT controlId) {
    m_tabNext = nullptr;
    m_tabNextId = controlId;
}

// The view's own menu changes its list behind our back; a list marked as showing thumbnails then no longer does.
BOOL CNavCommDlgView::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam)) {
        return TRUE;
    }
    const HWND list = m_browser != nullptr ? SafeHwnd(m_browser->GetListCtrl()) : nullptr;
    const auto before = ::SendMessageW(list, LVM_GETVIEW, 0, 0);
    Default();
    if (IsWindow(list) && ::SendMessageW(list, LVM_GETVIEW, 0, 0) != before) {
        ::SetWindowLongPtrW(list, GWLP_USERDATA, 0);
    }
    return TRUE;
}

void CNavCommDlgView::OnDestroy() {
    CWnd::OnDestroy();
    if (m_browser != nullptr) {
        knav::viewWindowDestroyed(m_browser->state(), m_hWnd);
    }
}

// Items of the view's own menus are measured by the shell, whatever controls of ours have the same id.
void CNavCommDlgView::OnMeasureItem(int control, MEASUREITEMSTRUCT* item) {
    if (item->CtlType == ODT_MENU) {
        Default();
    } else {
        CWnd::OnMeasureItem(control, item);
    }
}

BOOL CNavCommDlgView::PreTranslateMessage(MSG* message) {
    const bool isTab = message->message == WM_KEYDOWN && message->wParam == VK_TAB && GetKeyState(VK_CONTROL) >= 0;
    const HWND target = isTab && GetKeyState(VK_SHIFT) >= 0 ? tabTarget() : nullptr;
    if (target == nullptr) {
        return CWnd::PreTranslateMessage(message);
    }
    // As the dialog manager does it, so that default buttons and selected texts are right.
    ::SendMessageW(::GetParent(m_hWnd), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
    return TRUE;
}

HWND CNavCommDlgView::tabTarget() const {
    const HWND parent = ::GetParent(m_hWnd);
    const HWND next = m_tabNextId != 0 ? ::GetDlgItem(parent, static_cast<int>(m_tabNextId)) : SafeHwnd(m_tabNext);
    if (next == nullptr) {
        return nullptr;
    }
    const bool takesFocus =
        ::IsWindowVisible(next) && ::IsWindowEnabled(next) && (::GetWindowLongPtrW(next, GWL_STYLE) & WS_TABSTOP) != 0;
    const HWND target = takesFocus ? next : ::GetNextDlgTabItem(parent, next, FALSE);
    return target != m_hWnd ? target : ::GetNextDlgTabItem(parent, m_hWnd, FALSE);
}

LRESULT CNavCommDlgView::OnZoUiMessage(WPARAM wParam, LPARAM lParam) {
    return DoZoUiMessage(wParam, lParam);
}

LRESULT CNavCommDlgView::DoZoUiMessage(WPARAM wParam, LPARAM lParam) {
    return SafeHwnd(m_zoUiParent) != nullptr ? m_zoUiParent->SendMessage(WM_ZOUI_NOTIFY, wParam, lParam) : 0;
}
