// What a host that overrides the hooks gets to see, and what its answers do.
#include <knav/CNavPathname.h>
#include "dialog/Messages.h"

#include "dialog/RecordingDialog.h"

namespace knav::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::StartsWith;

class DialogHooks : public DialogTest {
protected:
    void SetUp() override {
        folder.addFile(L"plan.dwg");
        folder.addFile(L"sub\\inner.dwg");
    }
};

TEST_F(DialogHooks, Start_AsksForTheProductThenShowsTheFolderThenReadsThePlaces) {
    RecordingDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).untilShown({L"plan.dwg", L"sub"}).cancel().run(), IDCANCEL);
    const std::vector<std::string> order = {"GetProductName", "OnFolderChange", "GetAllDialogsData PlacesOrder0",
                                            "GetRecentDirectory"};
    EXPECT_EQ(dialog.only(order), order);
    EXPECT_EQ(dialog.count("OnFolderChange"), 1);
    EXPECT_GE(dialog.count("UpdateUIState"), 1);
    EXPECT_THAT(dialog.log, Not(Contains(StartsWith("SetAllDialogsData"))));
    EXPECT_EQ(dialog.count("OnFileNameChange"), 0) << "the user has typed nothing";
}

TEST_F(DialogHooks, Ok_CallsTheStepsInTheirOrder) {
    RecordingDialog dialog(folder.path());
    dialog.SetCreatingFile(1);
    dialog.SetConfirmReplace(1);
    DialogUser user(dialog);
    user.type(L"new").settle().check([&] { dialog.log.clear(); }).ok();
    EXPECT_EQ(user.run(), IDOK) << testing::PrintToString(dialog.log);
    EXPECT_THAT(dialog.only({"PreprocessData", "CombineDataTextWithFolderName new", "OnFileNameOK", "VerifyURLSave",
                             "OnUrlOK", "SetAllDialogsData PlacesOrder0"}),
                ElementsAre("PreprocessData", "CombineDataTextWithFolderName new", "OnFileNameOK", "VerifyURLSave",
                            "SetAllDialogsData PlacesOrder0"));
    EXPECT_THAT(dialog.log, Not(Contains(StartsWith("UpdateFileExtension"))));

    RecordingDialog opening(folder.path());
    EXPECT_EQ(DialogUser(opening).type(L"plan.dwg").ok().run(), IDOK);
    EXPECT_EQ(opening.count("VerifyURLSave") + opening.count("OnUrlOK"), 0) << "nothing is asked about saving";
}

TEST_F(DialogHooks, SelectionInTheView_IsAnItemChangeAndANewState) {
    RecordingDialog dialog(folder.path());
    DialogUser user(dialog);
    user.settle().check([&] { dialog.log.clear(); }).pick({L"plan.dwg"}).untilName(L"plan.dwg");
    user.check([&] { EXPECT_THAT(dialog.log, ElementsAre("OnFolderItemChange", "UpdateUIState")); }).cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
}

TEST_F(DialogHooks, WhatTheUserDoes_ReachesItsHook) {
    RecordingDialog dialog(folder.path());
    dialog.SetDialogData(L"FileNameMRU0", CString(L"older.dwg"));
    DialogUser user(dialog);
    const auto expectThenForget = [&](const char* hook) {
        user.settle().check([&dialog, hook] {
            EXPECT_EQ(dialog.count(hook), 1) << hook;
            dialog.log.clear();
        });
    };
    user.settle().check([&] { dialog.log.clear(); }).type(L"x");
    expectThenForget("OnFileNameChange");
    user.choose(IDC_KNAV_FILE_NAME, 0);
    expectThenForget("OnFileNameSelectionChange");
    user.chooseType(kTexts);
    expectThenForget("OnFilterChange");
    user.command(IDM_KNAV_REFRESH);
    expectThenForget("Refresh");
    user.command(IDM_KNAV_FAVORITE_FOLDER);
    expectThenForget("OnDoAddToFavorites 13237");
    user.type(L"sub").ok().untilFolder(folder.path(L"sub"));
    expectThenForget("OnFolderChange");
    user.command(IDM_KNAV_BACK).untilFolder(folder.path());
    expectThenForget("OnFolderChange");
    user.choose(IDC_KNAV_PLACES, 0);
    expectThenForget("OnPlacesChanged");
    for (const char* const hook : {"OnDialogHelp", "OnDialogHelp opening.htm"}) {
        user.check([] {
            HELPINFO info{};
            info.cbSize = sizeof info;
            info.hItemHandle = DialogDriver::dialog();
            SendMessageW(DialogDriver::dialog(), WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
        });
        expectThenForget(hook);
        user.check([&dialog] { dialog.SetHelpTag(L"opening.htm"); });
    }
    user.cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
    EXPECT_THAT(dialog.log, Not(Contains("PreprocessData")));
}

TEST_F(DialogHooks, Menus_ArePreparedEachTimeTheyDrop) {
    RecordingDialog dialog(folder.path());
    const std::pair<UINT, std::string> rows[] = {
        {IDC_KNAV_TOOLS, "PrepareToolsMenu " + std::to_string(IDM_KNAV_FIND)},
        {IDC_KNAV_VIEWS, "PrepareViewsMenu " + std::to_string(IDM_KNAV_LIST)},
        {IDOK, "PrepareOkMenu " + std::to_string(IDM_KNAV_OPEN)},
    };
    DialogUser user(dialog);
    user.settle();
    for (const auto& [id, note] : rows) {
        for (int times = 1; times <= 2; ++times) {
            user.check([id = id] {
                RECT area{};
                GetClientRect(DialogDriver::control(id), &area);
                const LPARAM arrow = MAKELPARAM(area.right - 5, area.bottom / 2);
                PostMessageW(DialogDriver::control(id), WM_LBUTTONDOWN, MK_LBUTTON, arrow);
                PostMessageW(DialogDriver::control(id), WM_LBUTTONUP, 0, arrow);
            });
            user.until(note, [&dialog, note = note, times] { return dialog.count(note) == times; });
            user.settle().check([] { EndMenu(); }).settle();
        }
    }
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
    EXPECT_THAT(dialog.log, Not(Contains("PreprocessData"))) << "a menu was opened, nothing was chosen";
}

TEST_F(DialogHooks, TypedUrl_IsOfferedToTheHostBeforeTheDialogCloses) {
    constexpr std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"http://host/plans/plan.dwg", L"http://host/plans/plan.dwg"},
        {L"HTTP://Host/a.dwg", L"http://Host/a.dwg"},
        {L"file:///C:/missing/a.dwg", L"file:///C:/missing/a.dwg"},
    };
    for (const auto& [typed, expected] : rows) {
        SCOPED_TRACE(utf8(typed));
        RecordingDialog dialog(folder.path());
        dialog.answers["OnUrlOK"] = 0;
        DialogUser user(dialog);
        user.type(typed).settle().check([&] { dialog.log.clear(); }).ok();
        user.until("the refusal", [&] { return dialog.count("OnUrlOK") == 1; }).settle();
        user.check([&, text = typed] {
            expectNameReadyToRetype(text);
            dialog.answers["OnUrlOK"] = 1;
        });
        EXPECT_EQ(user.ok().run(), IDOK);
        const std::string combine = "CombineDataTextWithFolderName " + utf8(typed);
        EXPECT_THAT(dialog.only({"PreprocessData", combine, "OnFileNameOK", "OnUrlOK"}),
                    ElementsAre("PreprocessData", combine, "OnFileNameOK", "OnUrlOK",  //
                                "PreprocessData", combine, "OnFileNameOK", "OnUrlOK"));
        EXPECT_EQ(dialog.count("BeginDownloadFiles"), 0) << "the host's answer stands for the whole transfer";
        ASSERT_EQ(dialog.data.GetCount(), 1);
        const CNavData& item = *dialog.data.GetData(0);
        EXPECT_EQ(item.GetDataType(), NAV_DATA_URL);
        CString url;
        EXPECT_EQ(item.GetURL(url), 1);
        EXPECT_EQ(url, expected);
        EXPECT_TRUE(item.GetPathname()->GetIsURL());
    }
}

TEST_F(DialogHooks, HostThatThrows_EndsItsOwnCallOnly) {
    struct Throwing : RecordingDialog {
        using RecordingDialog::RecordingDialog;
        void OnFileNameChange() override { throw std::runtime_error("the host's own fault"); }
        int OnFileNameOK() override {
            return count("PreprocessData") == 1 ? throw std::bad_alloc() : RecordingDialog::OnFileNameOK();
        }
    };
    Throwing dialog(folder.path());
    DialogUser user(dialog);
    user.type(L"plan.dwg").ok().until("the first attempt", [&] { return dialog.count("PreprocessData") == 1; });
    user.settle().ok();
    EXPECT_EQ(user.run(), IDOK);

    struct NeverReady : RecordingDialog {
        using RecordingDialog::RecordingDialog;
        int GetProductName(CString&) override { throw std::runtime_error("the host's own fault"); }
    };
    NeverReady unusable(folder.path());
    EXPECT_EQ(unusable.DoModal(), -1);
}

TEST_F(DialogHooks, RefusingHook_KeepsTheDialogOpen) {
    for (const char* const hook : {"PreprocessData", "OnFileNameOK", "VerifyURLSave"}) {
        SCOPED_TRACE(hook);
        RecordingDialog dialog(folder.path());
        dialog.SetCreatingFile(1);
        dialog.SetConfirmReplace(1);
        dialog.answers[hook] = hook == std::string("PreprocessData") ? OkErrInvalidName : 0;
        EXPECT_EQ(DialogUser(dialog).type(L"new.dwg").ok().settle().cancel().run(), IDCANCEL);
        EXPECT_EQ(dialog.count(hook), 1);
    }
}

TEST_F(DialogHooks, Locate_SearchesThroughTheHooksAndReportsThroughThem) {
    prompts.answer(IDOK);
    RecordingDialog dialog(folder.path());
    wchar_t expected[MAX_PATH];
    ASSERT_GT(SearchPathW(nullptr, L"notepad.exe", nullptr, MAX_PATH, expected, nullptr), 0u);
    DialogUser user(dialog);
    user.type(L"knav-nowhere.dwg").command(IDM_KNAV_LOCATE).untilAsked(prompts).settle();
    user.check([] { expectNameReadyToRetype(L"knav-nowhere.dwg"); });
    user.type(L"notepad.exe").command(IDM_KNAV_LOCATE).untilName(expected).cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
    EXPECT_THAT(
        dialog.only({"OnDoLocate", "FindInSearchPath knav-nowhere.dwg", "DisplaySearchError knav-nowhere.dwg",
                     "FindInSearchPath notepad.exe", "DisplaySearchError notepad.exe", "LocateFile"}),
        ElementsAre("OnDoLocate", "LocateFile", "FindInSearchPath knav-nowhere.dwg",
                    "DisplaySearchError knav-nowhere.dwg", "OnDoLocate", "LocateFile", "FindInSearchPath notepad.exe"));
    ASSERT_EQ(prompts.seen().size(), 1u);
    EXPECT_EQ(prompts.seen()[0].text, messageText(IDS_KNAV_LOCATE_FAILED, L"knav-nowhere.dwg"));
}

TEST_F(DialogHooks, Web_OpensTheBrowserWithTitleAndCaption_AndItsAnswerIsTakenLikeATypedName) {
    RecordingDialog dialog(folder.path());
    dialog.SetOkButtonText(L"&Open it");
    dialog.answers["LaunchBrowserDialog"] = 1;
    CString start;
    dialog.GetDefaultBrowserStartURL(start);
    EXPECT_EQ(DialogUser(dialog).command(IDM_KNAV_WEB).run(), IDOK);
    EXPECT_EQ(dialog.count("LaunchBrowserDialog &Open it"), 1);
    EXPECT_EQ(dialog.startUrl, start);
    const CString title = messageText(IDS_KNAV_WEB_TITLE) + L"Open it";  // the browser here answers with its title
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(title + L".dwg"))));
}

TEST_F(DialogHooks, OpenReadOnly_IsToldUntilTheNextChoice) {
    RecordingDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).type(L"plan.dwg").command(IDM_KNAV_OPEN_READ_ONLY).run(), IDOK);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 1);
    EXPECT_EQ(DialogUser(dialog).settle().cancel().run(), IDCANCEL);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 1) << "nothing was decided";
    EXPECT_EQ(DialogUser(dialog).type(L"plan.dwg").ok().run(), IDOK);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 0);
}

TEST_F(DialogHooks, OkMenu_OffersReadOnlyAsTheOptionsSay) {
    const auto stateOfReadOnly = [](RecordingDialog& dialog) {
        CMenu menu;
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, IDM_KNAV_OPEN, L"Open");
        menu.AppendMenu(MF_STRING, IDM_KNAV_OPEN_READ_ONLY, L"Open read-only");
        dialog.PrepareOkMenu(&menu);
        return GetMenuState(menu.m_hMenu, IDM_KNAV_OPEN_READ_ONLY, MF_BYCOMMAND);
    };
    RecordingDialog dialog(folder.path());
    EXPECT_EQ(stateOfReadOnly(dialog), static_cast<UINT>(MF_ENABLED));
    dialog.SetReadOnlyAllowed(0);
    EXPECT_EQ(stateOfReadOnly(dialog), static_cast<UINT>(MF_GRAYED));
    dialog.SetReadOnlyHidden(1);
    EXPECT_EQ(stateOfReadOnly(dialog), static_cast<UINT>(-1));
}

TEST_F(DialogHooks, SharedValues_AreSeenByEveryDialogAndLeaveTheNameAlone) {
    RecordingDialog one;
    RecordingDialog other;
    other.SetDialogName(L"Other");
    EXPECT_NE(one.SetAllDialogsData(CString(L"Number"), 7ul), 0);
    EXPECT_NE(one.SetAllDialogsData(CString(L"Text"), CString(L"words")), 0);
    EXPECT_EQ(one.GetDialogName(), L"TestDialog");
    unsigned long number = 0;
    CString text;
    EXPECT_NE(other.GetAllDialogsData(CString(L"Number"), number), 0);
    EXPECT_NE(other.GetAllDialogsData(CString(L"Text"), text), 0);
    EXPECT_EQ(number, 7u);
    EXPECT_EQ(text, L"words");
    EXPECT_EQ(other.GetAllDialogsData(CString(L"Missing"), text), 0);
    EXPECT_EQ(one.GetDialogData(L"Number", number), 0) << "not one of its own";
}

TEST_F(DialogHooks, HostCanActFromInsideAHook) {
    struct Removing : RecordingDialog {
        using RecordingDialog::RecordingDialog;
        int OnFileNameOK() override {
            data.RemoveAllData();
            return RecordingDialog::OnFileNameOK();
        }
    };
    Removing dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).type(L"plan.dwg").ok().settle().cancel().run(), IDCANCEL);

    struct Navigating : RecordingDialog {
        using RecordingDialog::RecordingDialog;
        void OnFolderChange() override {
            RecordingDialog::OnFolderChange();
            NavigateToFolder(target);  // inside a browse: refused without harm
            SendMessage(WM_COMMAND, IDM_KNAV_BACK);
        }
        CString target;
    };
    Navigating moving(folder.path());
    moving.target = folder.path(L"sub");
    DialogUser user(moving);
    user.type(L"sub").ok().untilFolder(moving.target).type(L"..").ok().untilFolder(folder.path()).settle();
    EXPECT_EQ(user.command(IDM_KNAV_BACK).untilFolder(moving.target).cancel().run(), IDCANCEL);
}

}  // namespace
}  // namespace knav::test
