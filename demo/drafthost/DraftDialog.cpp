#include "DraftDialog.h"

#include <knav/CNavDataArray.h>
#include <platform/CMenu.h>

#include <string>
#include <type_traits>

namespace {

CString quoted(const CString& text) {
    return L"\"" + text + L"\"";
}

template <class Number>
CString shown(Number number) {
    return std::to_wstring(static_cast<long long>(number));
}

CString countOf(const CStringArray& texts) {
    return shown(texts.GetCount()) + (texts.GetCount() == 1 ? L" text" : L" texts");
}

CString entriesOf(const CMenu* menu) {
    return shown(menu->GetMenuItemCount()) + L" entries";
}

}  // namespace

DraftDialog::DraftDialog(CNavDataArray& data, CNavFilterArray& filters, const DialogOptions& options, HookLog& log,
                         CWnd* parent)
    : CNavDialog(data, filters, 0, parent), m_options(options), m_log(log) {
    options.applyTo(*this);
    if (options.ownListControl) {
        SetFolderListCtrl(&m_list);
    }
}

// Logs a call while `body` makes it, and then what that returned.
template <class Body>
auto DraftDialog::logged(const CString& call, Body body) {
    HookLog::Call scope(m_log, call);
    if constexpr (std::is_void_v<decltype(body())>) {
        body();
    } else {
        const auto result = body();
        scope.returns(shown(result));
        return result;
    }
}

BOOL DraftDialog::OnInitDialog() {
    return logged(L"OnInitDialog()", [&] {
        const BOOL focus = CNavDialog::OnInitDialog();
        m_options.applyToShown(*this);
        return focus;
    });
}

void DraftDialog::OnOK() {
    logged(L"OnOK()", [&] { CNavDialog::OnOK(); });
}

void DraftDialog::OnCancel() {
    logged(L"OnCancel()", [&] { CNavDialog::OnCancel(); });
}

// --- the folder and what is selected in it -----------------------------------------------------------------------

void DraftDialog::OnFolderChange() {
    CString folder;
    GetCurrentFolderForPersistence(folder);
    logged(L"OnFolderChange() to " + quoted(folder), [&] { CNavDialog::OnFolderChange(); });
}

void DraftDialog::OnFolderItemChange() {
    logged(L"OnFolderItemChange()", [&] { CNavDialog::OnFolderItemChange(); });
}

void DraftDialog::OnPlacesChanged() {
    logged(L"OnPlacesChanged()", [&] { CNavDialog::OnPlacesChanged(); });
}

void DraftDialog::OnFileNameChange() {
    logged(L"OnFileNameChange()", [&] { CNavDialog::OnFileNameChange(); });
}

void DraftDialog::OnFileNameSelectionChange() {
    logged(L"OnFileNameSelectionChange()", [&] { CNavDialog::OnFileNameSelectionChange(); });
}

void DraftDialog::OnFilterChange() {
    logged(L"OnFilterChange() to type " + shown(GetFilterIndex()), [&] { CNavDialog::OnFilterChange(); });
}

void DraftDialog::UpdateUIState() {
    logged(L"UpdateUIState()", [&] { CNavDialog::UpdateUIState(); });
}

void DraftDialog::Refresh() {
    logged(L"Refresh()", [&] { CNavDialog::Refresh(); });
}

// --- OK ----------------------------------------------------------------------------------------------------------

OkHandlerErr DraftDialog::PreprocessData(CNavDataArray& data) {
    return logged(L"PreprocessData(" + shown(data.GetCount()) + L" items)",
                  [&] { return CNavDialog::PreprocessData(data); });
}

OkHandlerErr DraftDialog::CombineDataTextWithFolderName(CNavData* item, CString& text) {
    return logged(L"CombineDataTextWithFolderName(" + quoted(item->GetText()) + L")",
                  [&] { return CNavDialog::CombineDataTextWithFolderName(item, text); });
}

int DraftDialog::UpdateFileExtension(CString& name, int replace) {
    return logged(L"UpdateFileExtension(" + quoted(name) + L", " + shown(replace) + L")",
                  [&] { return CNavDialog::UpdateFileExtension(name, replace); });
}

int DraftDialog::OnFileNameOK() {
    return logged(L"OnFileNameOK()", [&] { return CNavDialog::OnFileNameOK(); });
}

// --- remote items ------------------------------------------------------------------------------------------------

int DraftDialog::OnUrlOK() {
    return logged(L"OnUrlOK()", [&] { return CNavDialog::OnUrlOK(); });
}

int DraftDialog::VerifyURLSave() {
    return logged(L"VerifyURLSave()", [&] { return CNavDialog::VerifyURLSave(); });
}

int DraftDialog::BeginDownloadFiles(CStringArray& urls, CDWordArray& codes) {
    return logged(L"BeginDownloadFiles(" + countOf(urls) + L")",
                  [&] { return CNavDialog::BeginDownloadFiles(urls, codes); });
}

unsigned long DraftDialog::GetDownloadActionCodes(CString& url) {
    return logged(L"GetDownloadActionCodes(" + quoted(url) + L")",
                  [&] { return CNavDialog::GetDownloadActionCodes(url); });
}

int DraftDialog::ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray& files) {
    return logged(L"ReportURLTransferStatus(" + countOf(urls) + L")",
                  [&] { return CNavDialog::ReportURLTransferStatus(codes, urls, files); });
}

void DraftDialog::OnURLDownloadSuccess(CString& file) {
    logged(L"OnURLDownloadSuccess(" + quoted(file) + L")", [&] { CNavDialog::OnURLDownloadSuccess(file); });
}

// --- menus and commands ------------------------------------------------------------------------------------------

void DraftDialog::PrepareOkMenu(CMenu* menu) {
    logged(L"PrepareOkMenu(" + entriesOf(menu) + L")", [&] { CNavDialog::PrepareOkMenu(menu); });
}

void DraftDialog::PrepareToolsMenu(CMenu* menu) {
    logged(L"PrepareToolsMenu(" + entriesOf(menu) + L")", [&] { CNavDialog::PrepareToolsMenu(menu); });
}

void DraftDialog::PrepareViewsMenu(CMenu* menu) {
    logged(L"PrepareViewsMenu(" + entriesOf(menu) + L")", [&] { CNavDialog::PrepareViewsMenu(menu); });
}

void DraftDialog::OnDoFind() {
    logged(L"OnDoFind()", [&] { CNavDialog::OnDoFind(); });
}

void DraftDialog::OnDoLocate() {
    logged(L"OnDoLocate()", [&] { CNavDialog::OnDoLocate(); });
}

void DraftDialog::OnDoAddToFavorites(int command) {
    logged(L"OnDoAddToFavorites(" + shown(command) + L")", [&] { CNavDialog::OnDoAddToFavorites(command); });
}

void DraftDialog::LocateFile() {
    logged(L"LocateFile()", [&] { CNavDialog::LocateFile(); });
}

int DraftDialog::FindInSearchPath(const wchar_t* name, CString* found) {
    return logged(L"FindInSearchPath(" + quoted(name) + L")",
                  [&] { return CNavDialog::FindInSearchPath(name, found); });
}

void DraftDialog::DisplaySearchError(const wchar_t* name) {
    logged(L"DisplaySearchError(" + quoted(name) + L")", [&] { CNavDialog::DisplaySearchError(name); });
}

void DraftDialog::GetDefaultBrowserStartURL(CString& url) {
    logged(L"GetDefaultBrowserStartURL()", [&] { CNavDialog::GetDefaultBrowserStartURL(url); });
}

int DraftDialog::LaunchBrowserDialog(CString& result, const wchar_t* title, const wchar_t* okCaption,
                                     const wchar_t* url) {
    return logged(L"LaunchBrowserDialog(" + quoted(url) + L")",
                  [&] { return CNavDialog::LaunchBrowserDialog(result, title, okCaption, url); });
}

void DraftDialog::OnDialogHelp() {
    logged(L"OnDialogHelp()", [&] { CNavDialog::OnDialogHelp(); });
}

void DraftDialog::OnDialogHelp(const wchar_t* topic) {
    logged(L"OnDialogHelp(" + quoted(topic) + L")", [&] { CNavDialog::OnDialogHelp(topic); });
}

// --- what the library asks for, and what it lets the host keep ----------------------------------------------------

int DraftDialog::GetProductName(CString& name) {
    return logged(L"GetProductName()", [&] { return CNavDialog::GetProductName(name); });
}

int DraftDialog::GetRecentDirectory(CString& folder) {
    return logged(L"GetRecentDirectory()", [&] { return CNavDialog::GetRecentDirectory(folder); });
}

int DraftDialog::SetAllDialogsData(const CString& name, unsigned long value) {
    return logged(L"SetAllDialogsData(" + quoted(name) + L", " + shown(value) + L")",
                  [&] { return CNavDialog::SetAllDialogsData(name, value); });
}

int DraftDialog::SetAllDialogsData(const CString& name, const CString& value) {
    return logged(L"SetAllDialogsData(" + quoted(name) + L", " + quoted(value) + L")",
                  [&] { return CNavDialog::SetAllDialogsData(name, value); });
}

int DraftDialog::GetAllDialogsData(const CString& name, unsigned long& value) {
    return logged(L"GetAllDialogsData(" + quoted(name) + L")",
                  [&] { return CNavDialog::GetAllDialogsData(name, value); });
}

int DraftDialog::GetAllDialogsData(const CString& name, CString& value) {
    return logged(L"GetAllDialogsData(" + quoted(name) + L")",
                  [&] { return CNavDialog::GetAllDialogsData(name, value); });
}
