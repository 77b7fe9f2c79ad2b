// A host's dialog that overrides every hook: each notes its call and does what the default does.
#pragma once

#include <platform/CMenu.h>

#include <map>

#include "dialog/DialogUser.h"

namespace knav::test {

class RecordingDialog : public TestDialog {
public:
    using TestDialog::TestDialog;

    std::vector<std::string> log;
    /// What a hook answers instead of calling the default.
    std::map<std::string, int> answers;

    /// How often a note was made.
    std::ptrdiff_t count(const std::string& note) const { return std::ranges::count(log, note); }
    /// The notes that are among `wanted`, in the order they were made, repetitions in a row left out.
    std::vector<std::string> only(const std::vector<std::string>& wanted) const {
        std::vector<std::string> found;
        std::ranges::copy_if(log, std::back_inserter(found),
                             [&](const std::string& note) { return std::ranges::count(wanted, note) > 0; });
        found.erase(std::unique(found.begin(), found.end()), found.end());
        return found;
    }

    void OnDialogHelp() override { note("OnDialogHelp"); }
    void OnDialogHelp(const wchar_t* topic) override { note("OnDialogHelp", topic); }
    int SetAllDialogsData(const CString& name, unsigned long value) override {
        note("SetAllDialogsData", name);
        return TestDialog::SetAllDialogsData(name, value);
    }
    int SetAllDialogsData(const CString& name, const CString& value) override {
        note("SetAllDialogsData", name);
        return TestDialog::SetAllDialogsData(name, value);
    }
    int GetAllDialogsData(const CString& name, unsigned long& value) override {
        note("GetAllDialogsData", name);
        return TestDialog::GetAllDialogsData(name, value);
    }
    int GetAllDialogsData(const CString& name, CString& value) override {
        note("GetAllDialogsData", name);
        return TestDialog::GetAllDialogsData(name, value);
    }
    void LocateFile() override {
        note("LocateFile");
        TestDialog::LocateFile();
    }
    int GetProductName(CString& name) override { return answer("GetProductName", TestDialog::GetProductName(name)); }
    int BeginDownloadFiles(CStringArray& urls, CDWordArray& codes) override {
        return answer("BeginDownloadFiles", TestDialog::BeginDownloadFiles(urls, codes));
    }
    unsigned long GetDownloadActionCodes(CString& url) override {
        note("GetDownloadActionCodes", url);
        return TestDialog::GetDownloadActionCodes(url);
    }
    void PrepareOkMenu(CMenu* menu) override {
        note("PrepareOkMenu", firstOf(menu));
        TestDialog::PrepareOkMenu(menu);
    }
    void PrepareToolsMenu(CMenu* menu) override {
        note("PrepareToolsMenu", firstOf(menu));
        TestDialog::PrepareToolsMenu(menu);
    }
    void PrepareViewsMenu(CMenu* menu) override {
        note("PrepareViewsMenu", firstOf(menu));
        TestDialog::PrepareViewsMenu(menu);
    }
    OkHandlerErr PreprocessData(CNavDataArray& items) override {
        note("PreprocessData");
        return instead("PreprocessData") ? static_cast<OkHandlerErr>(answers["PreprocessData"])
                                         : TestDialog::PreprocessData(items);
    }
    OkHandlerErr CombineDataTextWithFolderName(CNavData* item, CString& text) override {
        note("CombineDataTextWithFolderName", item->GetText());
        return instead("CombineDataTextWithFolderName")
                   ? static_cast<OkHandlerErr>(answers["CombineDataTextWithFolderName"])
                   : TestDialog::CombineDataTextWithFolderName(item, text);
    }
    int UpdateFileExtension(CString& name, int replace) override {
        note("UpdateFileExtension", name + (replace ? L" replace" : L""));
        return TestDialog::UpdateFileExtension(name, replace);
    }
    int OnFileNameOK() override {
        note("OnFileNameOK");
        return instead("OnFileNameOK") ? answers["OnFileNameOK"] : TestDialog::OnFileNameOK();
    }
    int VerifyURLSave() override { return answer("VerifyURLSave", TestDialog::VerifyURLSave()); }
    int OnUrlOK() override {
        note("OnUrlOK");
        return instead("OnUrlOK") ? answers["OnUrlOK"] : TestDialog::OnUrlOK();
    }
    int ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray& files) override {
        return answer("ReportURLTransferStatus", TestDialog::ReportURLTransferStatus(codes, urls, files));
    }
    int GetRecentDirectory(CString& path) override {
        return answer("GetRecentDirectory", TestDialog::GetRecentDirectory(path));
    }
    int FindInSearchPath(const wchar_t* name, CString* found) override {
        note("FindInSearchPath", name);
        return TestDialog::FindInSearchPath(name, found);
    }
    void DisplaySearchError(const wchar_t* name) override {
        note("DisplaySearchError", name);
        TestDialog::DisplaySearchError(name);
    }
    void GetDefaultBrowserStartURL(CString& url) override {
        note("GetDefaultBrowserStartURL");
        TestDialog::GetDefaultBrowserStartURL(url);
    }
    int LaunchBrowserDialog(CString& result, const wchar_t* title, const wchar_t* ok, const wchar_t* url) override {
        note("LaunchBrowserDialog", ok);
        result = title;
        startUrl = url;
        return instead("LaunchBrowserDialog") ? answers["LaunchBrowserDialog"] : 0;
    }
    void OnURLDownloadSuccess(CString& file) override { note("OnURLDownloadSuccess", file); }
    void OnDoLocate() override {
        note("OnDoLocate");
        TestDialog::OnDoLocate();
    }
    void OnDoFind() override { note("OnDoFind"); }
    void OnDoAddToFavorites(int command) override { note("OnDoAddToFavorites", std::to_wstring(command).c_str()); }
    void Refresh() override {
        note("Refresh");
        TestDialog::Refresh();
    }
    void OnFileNameChange() override {
        note("OnFileNameChange");
        TestDialog::OnFileNameChange();
    }
    void OnFileNameSelectionChange() override {
        note("OnFileNameSelectionChange");
        TestDialog::OnFileNameSelectionChange();
    }
    void OnFilterChange() override {
        note("OnFilterChange");
        TestDialog::OnFilterChange();
    }
    void OnFolderItemChange() override {
        note("OnFolderItemChange");
        TestDialog::OnFolderItemChange();
    }
    void OnFolderChange() override {
        note("OnFolderChange");
        TestDialog::OnFolderChange();
    }
    void UpdateUIState() override {
        note("UpdateUIState");
        TestDialog::UpdateUIState();
    }
    void OnPlacesChanged() override {
        note("OnPlacesChanged");
        TestDialog::OnPlacesChanged();
    }

    CString startUrl;

private:
    /// The command of a menu's first entry, as a text.
    static CString firstOf(CMenu* menu) {
        CString id;
        id.Format(L"%u", menu->GetMenuItemID(0));
        return id;
    }
    void note(const char* hook, const wchar_t* argument = nullptr) {
        log.push_back(argument ? std::string(hook) + " " + utf8(argument) : hook);
    }
    bool instead(const char* hook) const { return answers.contains(hook); }
    int answer(const char* hook, int usual) {
        note(hook);
        return instead(hook) ? answers[hook] : usual;
    }
};

}  // namespace knav::test
