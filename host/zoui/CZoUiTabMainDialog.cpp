#include <zoui/CZoUiTabMainDialog.h>

#include <uxtheme.h>

#include <zoui/CZoUiTabPage.h>

IMPLEMENT_DYNAMIC(CZoUiTabMainDialog, CZoUiDialog)

namespace {

// -1, 1: to the page before or after; 0: no such key.
int pageStep(const MSG& message) noexcept {
    if (message.message != WM_KEYDOWN || GetKeyState(VK_CONTROL) >= 0) {
        return 0;
    }
    switch (message.wParam) {
        case VK_TAB:
            return GetKeyState(VK_SHIFT) < 0 ? -1 : 1;
        case VK_PRIOR:
            return -1;
        case VK_NEXT:
            return 1;
        default:
            return 0;
    }
}

}  // namespace

CZoUiTabMainDialog::CZoUiTabMainDialog(UINT templateId, UINT tabControlId, CWnd* parent, HINSTANCE module)
    : CZoUiDialog(templateId, parent, module), m_tabControlId(tabControlId) {
}

LRESULT CZoUiTabMainDialog::askTabs(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendDlgItemMessage(static_cast<int>(m_tabControlId), message, wParam, lParam);
}

int CZoUiTabMainDialog::AddPage(CZoUiTabPage& page, const wchar_t* title) {
    if (page.m_hWnd == nullptr && !page.Create(page.GetTemplateId(), this)) {
        return -1;
    }
    const auto index = static_cast<int>(m_pages.size());
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(title);
    if (askTabs(TCM_INSERTITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item)) < 0) {
        page.DestroyWindow();
        return -1;
    }
    page.ModifyStyleEx(0, WS_EX_CONTROLPARENT);
    EnableThemeDialogTexture(page.m_hWnd, ETDT_ENABLETAB);
    m_pages.push_back(&page);
    LayOutPages();
    if (m_active < 0) {
        show(index);
    }
    return index;
}

// The pages' windows went with this one.
void CZoUiTabMainDialog::PostNcDestroy() {
    m_pages.clear();
    m_active = -1;
    CZoUiDialog::PostNcDestroy();
}

void CZoUiTabMainDialog::LayOutPages() {
    RECT room;
    ::GetWindowRect(::GetDlgItem(m_hWnd, static_cast<int>(m_tabControlId)), &room);
    askTabs(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&room));
    MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&room), 2);
    for (const CZoUiTabPage* page : m_pages) {
        // Above the tab control, which would be painted over it otherwise.
        page->SetWindowPos(HWND_TOP, room.left, room.top, room.right - room.left, room.bottom - room.top,
                           SWP_NOACTIVATE);
    }
}

void CZoUiTabMainDialog::show(int index) {
    m_active = index;
    askTabs(TCM_SETCURSEL, static_cast<WPARAM>(index), 0);
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        m_pages[i]->ShowWindow(static_cast<int>(i) == index ? SW_SHOW : SW_HIDE);
    }
}

BOOL CZoUiTabMainDialog::SetActivePage(int index) {
    if (index < 0 || index >= static_cast<int>(m_pages.size())) {
        return FALSE;
    }
    if (index == m_active) {
        return TRUE;
    }
    if (m_active >= 0 && !m_pages[static_cast<std::size_t>(m_active)]->OnLeave()) {
        askTabs(TCM_SETCURSEL, static_cast<WPARAM>(m_active), 0);
        return FALSE;
    }
    const HWND focus = ::GetFocus();
    const bool focusOnPage = m_active >= 0 && m_pages[static_cast<std::size_t>(m_active)]->IsChild(focus);
    show(index);
    if (focusOnPage) {
        NextDlgCtrl();  // the control that had it is hidden now
    }
    return TRUE;
}

BOOL CZoUiTabMainDialog::PreTranslateMessage(MSG* message) {
    const int step = pageStep(*message);
    const auto count = static_cast<int>(m_pages.size());
    if (step != 0 && count > 1 && ::IsChild(m_hWnd, message->hwnd)) {
        SetActivePage((m_active + step + count) % count);
        return TRUE;
    }
    return CZoUiDialog::PreTranslateMessage(message);
}

BOOL CZoUiTabMainDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
    if (header->idFrom == m_tabControlId && header->code == TCN_SELCHANGE) {
        SetActivePage(static_cast<int>(askTabs(TCM_GETCURSEL, 0, 0)));
        return TRUE;
    }
    return CZoUiDialog::OnNotify(wParam, lParam, result);
}

void CZoUiTabMainDialog::OnOK() {
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        if (!m_pages[i]->OnLeave()) {
            show(static_cast<int>(i));
            return;
        }
    }
    CZoUiDialog::OnOK();
}
