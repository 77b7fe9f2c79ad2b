// What the hooks do when a host does not override them.
#include <knav/CNavDialog.h>
#include <knav/NavUrl.h>
#include <platform/CMenu.h>

#include "data/ApiEdge.h"
#include "dialog/CNavDialogImp.h"
#include "resources/ids.h"

namespace {

/// Gives the dialog the name under which all dialogs share values, for as long as it lives.
class SharedName {
public:
    explicit SharedName(CZoUiDialog& dialog) : m_dialog(dialog), m_own(dialog.GetDialogName()) {
        m_dialog.SetDialogName(knav::kAllDialogsName);
    }
    ~SharedName() { m_dialog.SetDialogName(m_own); }
    SharedName(const SharedName&) = delete;
    SharedName& operator=(const SharedName&) = delete;

private:
    CZoUiDialog& m_dialog;
    const CString m_own;
};

template <class Body>
int underSharedName(CZoUiDialog& dialog, Body&& body) {
    return knav::atApiEdge(0, [&] {
        const SharedName shared(dialog);
        return body();
    });
}

}  // namespace

void CNavDialog::OnDialogHelp() {
}

int CNavDialog::SetAllDialogsData(const CString& name, unsigned long value) {
    return underSharedName(*this, [&] { return SetDialogData(name, value); });
}

int CNavDialog::SetAllDialogsData(const CString& name, const CString& value) {
    return underSharedName(*this, [&] { return SetDialogData(name, value); });
}

int CNavDialog::GetAllDialogsData(const CString& name, unsigned long& value) {
    return underSharedName(*this, [&] { return GetDialogData(name, value); });
}

int CNavDialog::GetAllDialogsData(const CString& name, CString& value) {
    return underSharedName(*this, [&] { return GetDialogData(name, value); });
}

void CNavDialog::LocateFile() {
    knav::atApiEdge([&] { m_imp->LocateFile(); });
}

int CNavDialog::GetProductName(CString& name) {
    name.Empty();
    return 0;
}

int CNavDialog::BeginDownloadFiles(CStringArray&, CDWordArray&) {
    return 1;
}

unsigned long CNavDialog::GetDownloadActionCodes(CString&) {
    return 4;
}

void CNavDialog::OnDialogHelp(const wchar_t*) {
}

void CNavDialog::PrepareOkMenu(CMenu* menu) {
    if (GetReadOnlyHidden()) {
        menu->DeleteMenu(IDM_KNAV_OPEN_READ_ONLY, MF_BYCOMMAND);
    } else if (!GetReadOnlyAllowed()) {
        menu->EnableMenuItem(IDM_KNAV_OPEN_READ_ONLY, MF_BYCOMMAND | MF_GRAYED);
    }
}

void CNavDialog::PrepareToolsMenu(CMenu* menu) {
    knav::atApiEdge([&] { m_imp->PrepareToolsMenu(menu); });
}

void CNavDialog::PrepareViewsMenu(CMenu* menu) {
    knav::atApiEdge([&] { m_imp->PrepareViewsMenu(menu); });
}

OkHandlerErr CNavDialog::PreprocessData(CNavDataArray& data) {
    return knav::atApiEdge(OkErrInvalidName, [&] { return m_imp->PreprocessData(data); });
}

OkHandlerErr CNavDialog::CombineDataTextWithFolderName(CNavData* item, CString& text) {
    return knav::atApiEdge(OkErrInvalidName, [&] { return m_imp->CombineDataTextWithFolderName(item, text); });
}

int CNavDialog::UpdateFileExtension(CString& name, int replace) {
    return knav::atApiEdge(0, [&] { return m_imp->UpdateFileExtension(name, replace); });
}

int CNavDialog::OnFileNameOK() {
    return knav::atApiEdge(0, [&] { return m_imp->OnFileNameOK(); });
}

int CNavDialog::VerifyURLSave() {
    return knav::atApiEdge(0, [&] { return m_imp->VerifyURLSave(); });
}

int CNavDialog::OnUrlOK() {
    return knav::atApiEdge(0, [&] { return m_imp->OnUrlOK(); });
}

int CNavDialog::ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray& files) {
    return knav::atApiEdge(0, [&] { return m_imp->ReportURLTransferStatus(codes, urls, files); });
}

int CNavDialog::GetRecentDirectory(CString& folder) {
    folder.Empty();
    return 0;
}

int CNavDialog::FindInSearchPath(const wchar_t* name, CString* found) {
    return knav::atApiEdge(0, [&] { return m_imp->FindInSearchPath(name, found); });
}

void CNavDialog::DisplaySearchError(const wchar_t* name) {
    knav::atApiEdge([&] { m_imp->DisplaySearchError(name); });
}

void CNavDialog::GetDefaultBrowserStartURL(CString& url) {
    knav::atApiEdge([&] { url = L"https://www.kelvara.example/"; });
}

int CNavDialog::LaunchBrowserDialog(CString&, const wchar_t*, const wchar_t*, const wchar_t* url) {
    NavLaunchBrowserWith(url);
    return 0;
}

void CNavDialog::OnURLDownloadSuccess(CString&) {
}

void CNavDialog::OnDoLocate() {
    LocateFile();
}

void CNavDialog::OnDoFind() {
    knav::atApiEdge([&] { m_imp->OnDoFind(); });
}

void CNavDialog::OnDoAddToFavorites(int command) {
    knav::atApiEdge([&] { m_imp->OnDoAddToFavorites(command); });
}

void CNavDialog::Refresh() {
    knav::atApiEdge([&] { m_imp->Refresh(); });
}

void CNavDialog::OnFileNameChange() {
    knav::atApiEdge([&] { m_imp->OnFileNameChange(); });
}

void CNavDialog::OnFileNameSelectionChange() {
    knav::atApiEdge([&] { m_imp->OnFileNameSelectionChange(); });
}

void CNavDialog::OnFilterChange() {
    knav::atApiEdge([&] { m_imp->OnFilterChange(); });
}

void CNavDialog::OnFolderItemChange() {
    knav::atApiEdge([&] { m_imp->SyncEditFieldToBrowser(); });
}

void CNavDialog::OnFolderChange() {
    knav::atApiEdge([&] { m_imp->OnFolderChange(); });
}

void CNavDialog::UpdateUIState() {
    knav::atApiEdge([&] { m_imp->UpdateUIState(); });
}

void CNavDialog::OnPlacesChanged() {
    knav::atApiEdge([&] { m_imp->OnSelChangePlacesList(); });
}

int CNavDialog::LeavesOutDisabledExtensions() const {
    return m_imp->leavesOutDisabledExtensions();
}
