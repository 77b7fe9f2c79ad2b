// The facade: construction, the framework's calls, and the operations that go to the implementation.
#include <knav/CNavDataArray.h>
#include <knav/CNavDialog.h>
#include <knav/NavFolders.h>
#include <platform/WindowMessages.h>

#include "data/ApiEdge.h"
#include "dialog/CNavDialogImp.h"
#include "dialog/ResourceModule.h"
#include "resources/ids.h"

namespace {

/// The shell's own message by which a view or an extension asks a window for its IShellBrowser.
constexpr UINT kGetIShellBrowser = WM_USER + 7;

}  // namespace

IMPLEMENT_DYNAMIC(CNavDialog, CZoUiDialog)

BEGIN_MESSAGE_MAP(CNavDialog, CZoUiDialog)
ON_WM_SYSCOLORCHANGE()
ON_WM_DESTROY()
ON_WM_HELPINFO()
ON_WM_CONTEXTMENU()
ON_WM_SIZE()
ON_WM_GETMINMAXINFO()
ON_MESSAGE(WM_KICKIDLE, &CNavDialog::OnKickIdle)
ON_MESSAGE(WM_DEVICECHANGE, &CNavDialog::OnWmDeviceChange)
ON_MESSAGE(kGetIShellBrowser, &CNavDialog::OnWmGetIShellBrowser)
ON_REGISTERED_MESSAGE(CNavDialogImp::s_ownMessage, &CNavDialog::OnImpMessage)
END_MESSAGE_MAP()

CNavDialog::CNavDialog(CNavDataArray& data, CNavFilterArray& filters, UINT idd, CWnd* parent, HINSTANCE instance)
    : CZoUiDialog(idd == 0 ? IDD_KNAV : idd, parent, idd == 0 ? knav::ownResources() : instance),
      m_imp(new CNavDialogImp(data, filters, idd == 0 ? IDD_KNAV : idd, *this)) {
}

CNavDialog::~CNavDialog() {
    delete m_imp;
}

// --- the framework ---------------------------------------------------------------------------------------------------

INT_PTR CNavDialog::DoModal() {
    return knav::atApiEdge(kDialogFailed, [this] { return m_imp->runModal(); });
}

BOOL CNavDialog::OnInitDialog() {
    const bool ready = knav::atApiEdge(false, [this] {
        m_imp->initializeOle();
        CZoUiDialog::OnInitDialog();
        m_imp->InitializeDialogData();
        return true;
    });
    if (!ready) {
        EndDialog(kDialogFailed);
    }
    return FALSE;  // the dialog has set the focus itself
}

void CNavDialog::DoDataExchange(CDataExchange* exchange) {
    CZoUiDialog::DoDataExchange(exchange);
    m_imp->DoDataExchange(exchange);
}

BOOL CNavDialog::PreTranslateMessage(MSG* message) {
    return knav::atApiEdge(FALSE, [&] { return m_imp->PreTranslateMessage(message); }) ||
           CZoUiDialog::PreTranslateMessage(message);
}

void CNavDialog::OnOK() {
    knav::atApiEdge([this] {
        m_imp->okButton().ClearState();
        m_imp->OnOK();
    });
}

void CNavDialog::OnCancel() {
    knav::atApiEdge([this] { m_imp->OnCancel(); });
}

ZOUI_REPLY CNavDialog::OnNotifyControlChange(unsigned int id, __int64 code) {
    return knav::atApiEdge(ZOUI_REPLY_NOT_HANDLED, [&] { return m_imp->OnNotifyControlChange(id, code); });
}

ZOUI_REPLY CNavDialog::OnNotifyGeneric(unsigned int code, __int64 parameter) {
    return knav::atApiEdge(ZOUI_REPLY_NOT_HANDLED, [&] { return m_imp->OnNotifyGeneric(code, parameter); });
}

BOOL CNavDialog::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
    // The implementation sees every command first; what the host's class makes of it does not depend on that.
    knav::atApiEdge([&] { m_imp->OnCmdMsg(id, code, extra, info); });
    return CZoUiDialog::OnCmdMsg(id, code, extra, info);
}

void CNavDialog::OnSysColorChange() {
    SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0);
    CZoUiDialog::OnSysColorChange();
}

void CNavDialog::OnDestroy() {
    knav::atApiEdge([this] { m_imp->OnDestroy(); });
    CZoUiDialog::OnDestroy();
}

BOOL CNavDialog::OnHelpInfo(HELPINFO* info) {
    return knav::atApiEdge(FALSE, [&] { return m_imp->OnHelpInfo(info); });
}

LRESULT CNavDialog::OnKickIdle(WPARAM wParam, LPARAM lParam) {
    return knav::atApiEdge(LRESULT{0}, [&] { return m_imp->OnKickIdle(wParam, lParam); });
}

void CNavDialog::OnContextMenu(CWnd*, POINT point) {
    knav::atApiEdge([&] { m_imp->OnContextMenu(nullptr, point); });
}

void CNavDialog::OnSize(UINT type, int cx, int cy) {
    CZoUiDialog::OnSize(type, cx, cy);
    knav::atApiEdge([&] { m_imp->OnSize(cx, cy); });
}

void CNavDialog::OnGetMinMaxInfo(MINMAXINFO* info) {
    knav::atApiEdge([&] { m_imp->OnGetMinMaxInfo(*info); });
}

LRESULT CNavDialog::OnWmGetIShellBrowser(WPARAM, LPARAM) {
    return reinterpret_cast<LRESULT>(m_imp->browser().GetIShellBrowser());
}

LRESULT CNavDialog::OnWmDeviceChange(WPARAM, LPARAM) {
    return knav::atApiEdge(LRESULT{1}, [this] { return m_imp->OnDeviceChange(); });
}

LRESULT CNavDialog::OnImpMessage(WPARAM wParam, LPARAM) {
    knav::atApiEdge([&] { m_imp->OnOwnMessage(static_cast<CNavDialogImp::OwnMessage>(wParam)); });
    return 0;
}
