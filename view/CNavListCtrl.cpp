#include <knav/CNavListCtrl.h>

#include "view/BrowserState.h"

#include <knav/CNavCommDlgBrowser.h>

LRESULT CNavListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CZoUiListCtrl::WindowProc(message, wParam, lParam);
    if ((message == LVM_INSERTITEMW || message == LVM_INSERTITEMA) && result >= 0 && m_browser != nullptr) {
        m_browser->state().arrivals.inserted(static_cast<int>(result));
    }
    return result;
}
