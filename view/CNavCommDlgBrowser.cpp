#include <knav/CNavCommDlgBrowser.h>

#include "data/ApiEdge.h"
#include "view/BrowserState.h"

#include <knav/CNavListCtrl.h>

#include <zoui/ZoUiNotify.h>

namespace {

constexpr unsigned kSelectionChanged = 16;

}  // namespace

CNavCommDlgBrowser::CNavCommDlgBrowser() : m_state(std::make_unique<knav::BrowserState>(*this)) {
}

CNavCommDlgBrowser::~CNavCommDlgBrowser() {
    m_state->site->detach();
    DestroyViewWindow(0);
    m_state->retired.destroyAll();
}

IUnknown* CNavCommDlgBrowser::GetInterfaceHook(REFIID iid) {
    IUnknown* const own = m_state->site->find(iid);
    return own != nullptr ? own : CCmdTarget::GetInterfaceHook(iid);
}

IShellBrowser* CNavCommDlgBrowser::GetIShellBrowser() {
    return m_state->site.get();
}

ICommDlgBrowser* CNavCommDlgBrowser::GetICommDlgBrowser() {
    return m_state->site.get();
}

int CNavCommDlgBrowser::IsAllowed(ITEMIDLIST* item) {
    return knav::atApiEdge(
        0, [&] { return m_state->admission.allows(item, m_state->filter, m_state->foldersOnly != 0) ? 1 : 0; });
}

int CNavCommDlgBrowser::OnDefaultCommand() {
    const auto callback = m_state->callback;  // handling the command may end the registration
    return callback && SUCCEEDED(knav::guarded([&] { return callback->OnDefaultCommand(); })) ? 1 : 0;
}

void CNavCommDlgBrowser::OnItemNameChange(IShellView* view) {
    OnItemSelectionChange(view);
}

void CNavCommDlgBrowser::OnItemSelectionChange(IShellView*) {
    if (m_state->owner != nullptr) {
        ZoUiNotify(m_state->owner, kSelectionChanged);
    }
}

unsigned int CNavCommDlgBrowser::GetViewMode() {
    if (const HWND list = SafeHwnd(m_state->listCtrl)) {
        m_state->viewMode = knav::readModeOfList(list);
    }
    return m_state->viewMode;
}

void CNavCommDlgBrowser::SetViewMode(unsigned int mode) {
    if (mode != GetViewMode()) {
        m_state->viewMode = mode;
        ApplyViewModeToList(mode);
        BrowseCurrentObject();
    }
}

void CNavCommDlgBrowser::StoreViewMode(unsigned int mode) {
    m_state->viewMode = mode;
}

void CNavCommDlgBrowser::ApplyViewModeToList(unsigned int mode) {
    if (const HWND list = SafeHwnd(m_state->listCtrl)) {
        knav::applyModeToList(list, mode);
    }
}
