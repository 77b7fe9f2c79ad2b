// The file dialog of this host: logs every hook that the library calls, and otherwise leaves all to the library.
#pragma once

#include <knav/CNavDialog.h>
#include <knav/CNavListCtrl.h>

#include "DialogOptions.h"
#include "HookLog.h"

/// The pattern of a host's own dialog class: it takes the options in its constructor and overrides the hooks, each of
/// which may do something before and after what the library does by itself.
class DraftDialog : public CNavDialog {
public:
    /// The arrays and the log outlive the dialog.
    DraftDialog(CNavDataArray& data, CNavFilterArray& filters, const DialogOptions& options, HookLog& log,
                CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    // The folder and what is selected in it.
    void OnFolderChange() override;
    void OnFolderItemChange() override;
    void OnPlacesChanged() override;
    void OnFileNameChange() override;
    void OnFileNameSelectionChange() override;
    void OnFilterChange() override;
    void UpdateUIState() override;
    void Refresh() override;

    // OK, in the order of the calls.
    OkHandlerErr PreprocessData(CNavDataArray& data) override;
    OkHandlerErr CombineDataTextWithFolderName(CNavData* item, CString& text) override;
    int UpdateFileExtension(CString& name, int replace) override;
    int OnFileNameOK() override;

    // Remote items.
    int OnUrlOK() override;
    int VerifyURLSave() override;
    int BeginDownloadFiles(CStringArray& urls, CDWordArray& codes) override;
    unsigned long GetDownloadActionCodes(CString& url) override;
    int ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray& files) override;
    void OnURLDownloadSuccess(CString& file) override;

    // Menus and commands.
    void PrepareOkMenu(CMenu* menu) override;
    void PrepareToolsMenu(CMenu* menu) override;
    void PrepareViewsMenu(CMenu* menu) override;
    void OnDoFind() override;
    void OnDoLocate() override;
    void OnDoAddToFavorites(int command) override;
    void LocateFile() override;
    int FindInSearchPath(const wchar_t* name, CString* found) override;
    void DisplaySearchError(const wchar_t* name) override;
    void GetDefaultBrowserStartURL(CString& url) override;
    int LaunchBrowserDialog(CString& result, const wchar_t* title, const wchar_t* okCaption,
                            const wchar_t* url) override;
    void OnDialogHelp() override;
    void OnDialogHelp(const wchar_t* topic) override;

    // What the library asks the host for, and what it lets the host keep.
    int GetProductName(CString& name) override;
    int GetRecentDirectory(CString& folder) override;
    int SetAllDialogsData(const CString& name, unsigned long value) override;
    int SetAllDialogsData(const CString& name, const CString& value) override;
    int GetAllDialogsData(const CString& name, unsigned long& value) override;
    int GetAllDialogsData(const CString& name, CString& value) override;

private:
    template <class Body>
    auto logged(const CString& call, Body body);

    const DialogOptions& m_options;
    HookLog& m_log;
    CNavListCtrl m_list;
};
