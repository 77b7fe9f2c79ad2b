// A host's dialog that overrides every hook: each notes its call and does what the default does.
#pragma once

#include <platform/CMenu.h>

#include <map>

#include "dialog/DialogUser.h"

namespace knav::test {

class RecordingDialog : public TestDialog {
private:
    /// The command of a menu's first entry, as a text.
    static CString firstOf(CMenu* menu) {
        CString id;
        id.Format(L"%u", menu->GetMenuItemID(0));
        return id;
    }
    /// Notes a call, with its argument.
    RecordingDialog& noted(const char* hook, const wchar_t* argument = nullptr) {
        log.push_back(argument ? std::string(hook) + " " + utf8(argument) : hook);
        return *this;
    }
    /// Notes a call and does as usual unless an answer is given.
    template <class Usual>
    auto answer(const char* hook, Usual usual, const wchar_t* argument = nullptr) {
        noted(hook, argument);
        return answers.contains(hook) ? static_cast<decltype(usual())>(answers[hook]) : usual();
    }

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

    void OnDialogHelp() override { noted("OnDialogHelp"); }
    void OnDialogHelp(const wchar_t* topic) override { noted("OnDialogHelp", topic); }
    int SetAllDialogsData(const CString& name, unsigned long value) override {
        return noted("SetAllDialogsData", name).TestDialog::SetAllDialogsData(name, value);
    }
    int SetAllDialogsData(const CString& name, const CString& value) override {
        return noted("SetAllDialogsData", name).TestDialog::SetAllDialogsData(name, value);
    }
    int GetAllDialogsData(const CString& name, unsigned long& value) override {
        return noted("GetAllDialogsData", name).TestDialog::GetAllDialogsData(name, value);
    }
    int GetAllDialogsData(const CString& name, CString& value) override {
        return noted("GetAllDialogsData", name).TestDialog::GetAllDialogsData(name, value);
    }
    void LocateFile() override { noted("LocateFile").TestDialog::LocateFile(); }
    int GetProductName(CString& name) override { return noted("GetProductName").TestDialog::GetProductName(name); }
    int BeginDownloadFiles(CStringArray& urls, CDWordArray& codes) override {
        return noted("BeginDownloadFiles").TestDialog::BeginDownloadFiles(urls, codes);
    }
    unsigned long GetDownloadActionCodes(CString& url) override {
        return noted("GetDownloadActionCodes", url).TestDialog::GetDownloadActionCodes(url);
    }
    void PrepareOkMenu(CMenu* menu) override { noted("PrepareOkMenu", firstOf(menu)).TestDialog::PrepareOkMenu(menu); }
    void PrepareToolsMenu(CMenu* menu) override {
        noted("PrepareToolsMenu", firstOf(menu)).TestDialog::PrepareToolsMenu(menu);
    }
    void PrepareViewsMenu(CMenu* menu) override {
        noted("PrepareViewsMenu", firstOf(menu)).TestDialog::PrepareViewsMenu(menu);
    }
    OkHandlerErr PreprocessData(CNavDataArray& items) override {
        return answer("PreprocessData", [&] { return TestDialog::PreprocessData(items); });
    }
    OkHandlerErr CombineDataTextWithFolderName(CNavData* item, CString& text) override {
        return answer(
            "CombineDataTextWithFolderName", [&] { return TestDialog::CombineDataTextWithFolderName(item, text); },
            item->GetText());
    }
    int UpdateFileExtension(CString& name, int replace) override {
        return noted("UpdateFileExtension", name + (replace ? L" replace" : L""))
            .TestDialog::UpdateFileExtension(name, replace);
    }
    int OnFileNameOK() override {
        return answer("OnFileNameOK", [&] { return TestDialog::OnFileNameOK(); });
    }
    int VerifyURLSave() override {
        return answer("VerifyURLSave", [&] { return TestDialog::VerifyURLSave(); });
    }
    int OnUrlOK() override {
        return answer("OnUrlOK", [&] { return TestDialog::OnUrlOK(); });
    }
    int ReportURLTransferStatus(CDWordArray& codes, CStringArray& urls, CStringArray& files) override {
        return noted("ReportURLTransferStatus").TestDialog::ReportURLTransferStatus(codes, urls, files);
    }
    int GetRecentDirectory(CString& path) override {
        return noted("GetRecentDirectory").TestDialog::GetRecentDirectory(path);
    }
    int FindInSearchPath(const wchar_t* name, CString* found) override {
        return noted("FindInSearchPath", name).TestDialog::FindInSearchPath(name, found);
    }
    void DisplaySearchError(const wchar_t* name) override {
        noted("DisplaySearchError", name).TestDialog::DisplaySearchError(name);
    }
    void GetDefaultBrowserStartURL(CString& url) override {
        noted("GetDefaultBrowserStartURL").TestDialog::GetDefaultBrowserStartURL(url);
    }
    int LaunchBrowserDialog(CString& result, const wchar_t* title, const wchar_t* ok, const wchar_t* url) override {
        result = title;
        startUrl = url;
        return answer(
            "LaunchBrowserDialog", [] { return 0; }, ok);
    }
    void OnURLDownloadSuccess(CString& file) override { noted("OnURLDownloadSuccess", file); }
    void OnDoLocate() override { noted("OnDoLocate").TestDialog::OnDoLocate(); }
    void OnDoFind() override { noted("OnDoFind"); }
    void OnDoAddToFavorites(int command) override { noted("OnDoAddToFavorites", std::to_wstring(command).c_str()); }
    void Refresh() override { noted("Refresh").TestDialog::Refresh(); }
    void OnFileNameChange() override { noted("OnFileNameChange").TestDialog::OnFileNameChange(); }
    void OnFileNameSelectionChange() override {
        noted("OnFileNameSelectionChange").TestDialog::OnFileNameSelectionChange();
    }
    void OnFilterChange() override { noted("OnFilterChange").TestDialog::OnFilterChange(); }
    void OnFolderItemChange() override { noted("OnFolderItemChange").TestDialog::OnFolderItemChange(); }
    void OnFolderChange() override { noted("OnFolderChange").TestDialog::OnFolderChange(); }
    void UpdateUIState() override { noted("UpdateUIState").TestDialog::UpdateUIState(); }
    void OnPlacesChanged() override { noted("OnPlacesChanged").TestDialog::OnPlacesChanged(); }

    CString startUrl;
};

}  // namespace knav::test
