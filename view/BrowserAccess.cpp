// The values that a browser host keeps for its dialog.
#include <knav/CNavCommDlgBrowser.h>

#include "data/ApiEdge.h"
#include "view/BrowserState.h"

#include <platform/CWnd.h>

namespace knav {

HWND BrowserState::ownerHandle() const {
    return SafeHwnd(owner);
}

void BrowserState::setObjectId(ItemList id, ComPtr<IShellFolder> boundFolder) {
    objectId = std::move(id);
    admission.setFolder(objectId.get(), std::move(boundFolder));
}

}  // namespace knav

CNavFilter* CNavCommDlgBrowser::GetCurrentFilter() const {
    return m_state->filter;
}

void CNavCommDlgBrowser::SetCurrentFilter(CNavFilter* filter) {
    m_state->filter = filter;
}

ITEMIDLIST* CNavCommDlgBrowser::GetCurrentObjectID() const {
    return m_state->objectId.get();
}

void CNavCommDlgBrowser::SetCurrentObjectID(ITEMIDLIST* list) {
    knav::atApiEdge([&] { m_state->setObjectId(knav::ItemList::copyOf(list)); });
}

IShellView* CNavCommDlgBrowser::GetCurrentShellView() const {
    return m_state->view.get();
}

void CNavCommDlgBrowser::SetCurrentShellView(IShellView* view) {
    m_state->view = knav::ComPtr<IShellView>::retain(view);
    m_state->viewHandle = knav::windowOfView(view);
}

IShellFolder* CNavCommDlgBrowser::GetCurrentFolder() const {
    return m_state->folder.get();
}

const FOLDERSETTINGS& CNavCommDlgBrowser::GetCurrentFolderSettings() const {
    return m_state->folderSettings;
}

UINT CNavCommDlgBrowser::GetBrowseFlags() const {
    return m_state->browseFlags;
}

const RECT& CNavCommDlgBrowser::GetViewRect() const {
    return m_state->viewRect;
}

int CNavCommDlgBrowser::GetMultiSelectAllowed() const {
    return m_state->multiSelectAllowed;
}

void CNavCommDlgBrowser::SetMultiSelectAllowed(int allowed) {
    m_state->multiSelectAllowed = allowed;
}

int CNavCommDlgBrowser::GetFoldersOnly() const {
    return m_state->foldersOnly;
}

void CNavCommDlgBrowser::SetFoldersOnly(int foldersOnly) {
    m_state->foldersOnly = foldersOnly;
}

int CNavCommDlgBrowser::GetForceBrowse() const {
    return m_state->forceBrowse;
}

void CNavCommDlgBrowser::SetForceBrowse(int force) {
    m_state->forceBrowse = force;
}

CWnd* CNavCommDlgBrowser::GetViewOwnerWindow() const {
    return m_state->owner;
}

void CNavCommDlgBrowser::SetViewOwnerWindow(CWnd* window, CCmdTarget* target) {
    m_state->owner = window;
    IDispatch* const dispatch = target != nullptr ? target->GetIDispatch(FALSE) : nullptr;
    m_state->callback = knav::ComPtr<IKNavUI>::from([dispatch](IKNavUI** callback) {
        return dispatch != nullptr ? dispatch->QueryInterface(IID_IKNavUI, reinterpret_cast<void**>(callback)) : E_FAIL;
    });
}

IKNavUI* CNavCommDlgBrowser::GetKNavUI() const {
    return m_state->callback.get();
}

void CNavCommDlgBrowser::SetKNavUI(IKNavUI* callback) {
    m_state->callback = knav::ComPtr<IKNavUI>::retain(callback);
}

void CNavCommDlgBrowser::SetBrowseOwner(knav::BrowseOwner* owner) {
    m_state->browseOwner = owner;
}

CNavCommDlgView* CNavCommDlgBrowser::GetViewWindow() const {
    return m_state->viewWindow;
}

void CNavCommDlgBrowser::SetViewWindow(CNavCommDlgView* window) {
    m_state->viewWindow = window;
}

CNavListCtrl* CNavCommDlgBrowser::GetListCtrl() const {
    return m_state->listCtrl;
}

void CNavCommDlgBrowser::SetListCtrl(CNavListCtrl* list) {
    m_state->listCtrl = list;
}

CNavCommDlgBuddy* CNavCommDlgBrowser::GetBuddyWindow() const {
    return m_state->buddy;
}

void CNavCommDlgBrowser::SetBuddyWindow(CNavCommDlgBuddy* buddy) {
    m_state->buddy = buddy;
}
