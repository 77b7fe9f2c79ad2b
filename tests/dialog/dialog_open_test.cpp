// Choosing a file in a dialog that opens files.
#include <knav/CNavPathname.h>

#include <filesystem>
#include <set>

#include "dialog/Messages.h"
#include "dialog/RecordingDialog.h"
#include "support/RealNamespace.h"

namespace knav::test {
namespace {

class DialogOpen : public DialogTest {
protected:
    /// Files by number, from "plan00000.dwg" on.
    void addNumbered(int files) {
        folder.addFiles(files, [](int number) {
            CString name;
            name.Format(L"plan%05d.dwg", number);
            return name;
        });
    }
};

TEST_F(DialogOpen, TypedName_GivesOneItemWithItsFullPath) {
    const CString file = folder.addFile(L"plan.dwg");
    TestDialog dialog(folder.path());
    dialog.data.AddData()->SetText(L"left by an earlier run");
    EXPECT_EQ(DialogUser(dialog).type(L"  plan.dwg ").ok().run(), IDOK);

    ASSERT_EQ(dialog.chosen(), paths({L"plan.dwg"}));
    const CNavData& item = *dialog.data.GetData(0);
    EXPECT_EQ(item.GetPathname()->GetType(), CZoUiPathname::ExistingFile);
    EXPECT_TRUE(item.GetPathname()->Exists());
    CString path;
    dialog.GetSingleDataFullPath(path);
    EXPECT_EQ(path, file);
}

void toOpen(TestDialog&) {
}

void toSave(TestDialog& dialog) {
    dialog.SetCreatingFile(1);
    dialog.SetConfirmReplace(1);
}

void toSaveAnyType(TestDialog& dialog) {
    toSave(dialog);
    dialog.SetForceFilterIndex(kAllFiles);
}

void toSaveAnyExtension(TestDialog& dialog) {
    toSave(dialog);
    dialog.SetAcceptAnyFileExtension(1);
}

void toSaveUnasked(TestDialog& dialog) {
    dialog.SetCreatingFile(1);
}

/// The file must exist; but that is asked for one file only.
void toOpenSeveral(TestDialog& dialog) {
    dialog.SetConfirmReplace(1);
    dialog.SetMultiSelectAllowed(1);
}

struct TypedRow {
    const char* why;
    void (*prepare)(TestDialog&);
    const wchar_t* typed;
    const wchar_t* file;  // relative to the folder
};

TEST_F(DialogOpen, TypedForms_NameTheFile) {
    folder.addFile(L"plan.dwg");
    folder.addFile(L"sub\\part.dwg");
    folder.addFile(L"a b\\two words.dwg");
    SetEnvironmentVariableW(L"KNAV_TEST_DIR", folder.path(L"sub"));
    constexpr TypedRow rows[] = {
        {"the extension of the file type is added", toOpen, L"plan", L"plan.dwg"},
        {"case does not matter", toOpen, L"PLAN.DWG", L"PLAN.DWG"},
        {"a path below the folder", toOpen, L"sub\\part", L"sub\\part.dwg"},
        {"slashes", toOpen, L"sub/part.dwg", L"sub\\part.dwg"},
        {"dots are resolved", toOpen, L"sub\\..\\plan.dwg", L"plan.dwg"},
        {"a variable", toOpen, L"%KNAV_TEST_DIR%\\part", L"sub\\part.dwg"},
        {"blanks inside names", toOpen, L"a b\\two words", L"a b\\two words.dwg"},
        {"one that may be missing", toOpenSeveral, L"missing.dwg", L"missing.dwg"},
        {"saved without an extension", toSave, L"new", L"new.dwg"},
        {"saved with an extension of no file type", toSave, L"plan.bak", L"plan.bak.dwg"},
        {"saved with the extension of another file type", toSave, L"plan.txt", L"plan.txt"},
        {"saved with stray blanks", toSave, L" tower . dwg ", L"tower .dwg"},
        {"saved with any extension", toSaveAnyExtension, L"plan.bak", L"plan.bak"},
        {"saved over a file unasked", toSaveUnasked, L"plan", L"plan.dwg"},
        {"saved among all files", toSaveAnyType, L"plan", L"plan"},  // the last one, since the type is remembered
    };
    for (const TypedRow& row : rows) {
        SCOPED_TRACE(row.why);
        TestDialog dialog(folder.path());
        row.prepare(dialog);
        EXPECT_EQ(DialogUser(dialog).type(row.typed).ok().run(), IDOK);
        CString path;
        ASSERT_EQ(dialog.data.GetCount(), 1);
        dialog.data.GetData(0)->GetPathname()->GetFullPath(path);
        EXPECT_EQ(path, folder.path(row.file));
        EXPECT_EQ(dialog.data.GetData(0)->GetDataType(), NAV_DATA_FILE);
    }
}

TEST_F(DialogOpen, SelectedItem_IsShownInTheFieldAndReturned_UnlessAnotherNameIsTyped) {
    folder.addFile(L"a.dwg");
    folder.addFile(L"b.dwg");
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).pick({L"a.dwg"}).untilName(L"a.dwg").pick({L"b.dwg"}).untilName(L"b.dwg").ok().run(),
              IDOK);
    ASSERT_EQ(dialog.chosen(), paths({L"b.dwg"}));
    EXPECT_NE(dialog.data.GetData(0)->GetID(), nullptr);
    TestDialog typing(folder.path());
    EXPECT_EQ(DialogUser(typing).pick({L"b.dwg"}).untilName(L"b.dwg").type(L"a.dwg").ok().run(), IDOK);
    EXPECT_EQ(typing.chosen(), paths({L"a.dwg"}));
    DialogUser user(typing);
    EXPECT_EQ(user.pick({L"a.dwg"}).untilName(L"a.dwg").type(L"b.dwg").doubleClick(L"a.dwg").run(), IDOK);
    EXPECT_EQ(typing.chosen(), paths({L"a.dwg"})) << "but not over what is double-clicked";
}

TEST_F(DialogOpen, DoubleClickOnFolder_EntersItAndStaysOpen) {
    folder.addFile(L"sub\\inner.dwg");
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    const auto expectKept = [] { EXPECT_EQ(fileNameText(), L"x") << "what was typed stays"; };
    user.type(L"x").doubleClick(L"sub").untilFolder(folder.path(L"sub")).untilShown({L"inner.dwg"}).check(expectKept);
    user.chooseType(kTexts).untilShown({}).check(expectKept);
    EXPECT_EQ(user.cancel().run(), IDCANCEL);
}

TEST_F(DialogOpen, PlaceWithoutAPath_IsEnteredAndNeverReturned) {
    for (const int foldersOnly : {0, 1}) {
        TestDialog dialog;
        dialog.SetForceInitialFolder(L"Desktop");
        dialog.SetFoldersOnly(foldersOnly);
        DialogUser user(dialog);
        user.doubleClick(L"My Computer").untilFolder(kMyComputer).command(IDM_KNAV_BACK).untilFolder(L"Desktop");
        user.pick({L"My Computer"}).ok().untilFolder(kMyComputer).cancel();
        EXPECT_EQ(user.run(), IDCANCEL);
    }
}

TEST_F(DialogOpen, PickedShortcut_GivesTheFileOrEntersTheFolderItLeadsTo) {
    addShortcut(folder, L"file.lnk", folder.addFile(L"sub\\inner.dwg"));
    addShortcut(folder, L"folder.lnk", folder.path(L"sub"));
    TestDialog dialog;
    dialog.SetForceInitialFolder(folder.path());
    dialog.SetForceFilterIndex(kAllFiles);
    EXPECT_EQ(DialogUser(dialog).doubleClick(L"folder").untilFolder(folder.path(L"sub")).cancel().run(), IDCANCEL);
    EXPECT_EQ(DialogUser(dialog).pick({L"file"}).ok().run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"sub\\inner.dwg"}));
}

TEST_F(DialogOpen, NothingTyped_OkStaysOpenWithoutAWord) {
    for (const wchar_t* const nothing : {L"", L"   "}) {
        TestDialog dialog(folder.path());
        EXPECT_EQ(DialogUser(dialog).type(nothing).ok().settle().cancel().run(), IDCANCEL);
        EXPECT_EQ(dialog.data.GetCount(), 0);
    }
}

TEST_F(DialogOpen, TypedFolder_IsEnteredAndEmptiesTheField) {
    folder.addFile(L"sub\\inner.dwg");
    std::wstring url = L"file:///" + wide(folder.path(L"sub"));
    std::ranges::replace(url, L'\\', L'/');
    for (const std::wstring& typed : {std::wstring(L"sub"), std::wstring(L"sub\\"), wide(folder.path(L"sub")), url}) {
        SCOPED_TRACE(utf8(typed));
        TestDialog dialog;
        dialog.SetForceInitialFolder(folder.path());
        DialogUser user(dialog);
        user.type(typed).ok().untilFolder(folder.path(L"sub")).untilName(L"").type(L"inner").ok();
        EXPECT_EQ(user.run(), IDOK);
        EXPECT_EQ(dialog.chosen(), paths({L"sub\\inner.dwg"}));
    }
}

TEST_F(DialogOpen, TypedParent_GoesUp) {
    folder.addFile(L"sub\\inner.dwg");
    TestDialog dialog(folder.path(L"sub"));
    EXPECT_EQ(DialogUser(dialog).type(L"..").ok().untilFolder(folder.path()).cancel().run(), IDCANCEL);
}

void toOpenWhatExists(TestDialog& dialog) {
    dialog.SetConfirmReplace(1);
}

struct RefusedRow {
    const char* why;
    std::wstring typed;
    CString name;  // of the task dialog, or empty
    CString text;  // of the message box, or empty
    void (*prepare)(TestDialog&);
    int hookError;  // what combining the name with the folder answers; 0: what it is
};

TEST_F(DialogOpen, UnusableName_IsReportedAndKeptForRetyping) {
    const CString missing = folder.path(L"nosuch\\plan.dwg");
    const RefusedRow rows[] = {
        {"a missing folder", L"nosuch\\plan.dwg", L"", messageText(IDS_KNAV_INVALID_PATH, missing), toOpen, 0},
        {"a missing drive", L"q:\\x.dwg", L"", messageText(IDS_KNAV_NO_DRIVE, L"Q:"), toOpen, 0},
        {"characters that no name can hold", L"a|b.dwg", L"Standard.Object.UnsupportCharacters", L"", toOpen, 0},
        {"an unpaired quote", L"\"a", L"Standard.Object.UnsupportCharacters", L"", toOpen, 0},
        {"too long for a path", std::wstring(250, L'n'), L"Standard.InvalidName.TooLong", L"", toOpen, 0},
        {"a missing file", L"missing.dwg", L"Standard.FileNotFound", L"", toOpenWhatExists, 0},
        {"the host's word", L"plan", L"", messageText(IDS_KNAV_INVALID_NAME), toOpen, OkErrInvalidName},
        {"an error of the host's own", L"plan", L"", messageText(IDS_KNAV_INVALID_NAME), toOpen, 77},
        {"no folder", L"plan", L"", messageText(IDS_KNAV_NO_FOLDER_TO_OPEN), toOpen, OkErrNoFileSystemFolder},
        {"no folder to save in", L"plan", L"", messageText(IDS_KNAV_NO_FOLDER_TO_SAVE), toSave,
         OkErrNoFileSystemFolder},
    };
    for (const RefusedRow& row : rows) {
        SCOPED_TRACE(row.why);
        const std::size_t before = prompts.seen().size();
        prompts.answer(IDOK);
        RecordingDialog dialog(folder.path());
        dialog.SetDialogCaption(L"Open a plan");
        row.prepare(dialog);
        if (row.hookError != 0) {
            dialog.answers["CombineDataTextWithFolderName"] = row.hookError;
        }
        DialogUser user(dialog);
        user.type(row.typed).ok().untilAsked(prompts, before + 1).settle();
        user.check([&] { expectNameReadyToRetype(row.typed); }).cancel();
        EXPECT_EQ(user.run(), IDCANCEL);
        ASSERT_EQ(prompts.seen().size(), before + 1);
        const SeenPrompt& seen = prompts.seen().back();
        EXPECT_EQ(seen.name, row.name);
        EXPECT_TRUE(row.text.IsEmpty() || seen.text == row.text) << utf8(seen.text.view());
        EXPECT_TRUE(row.hookError == 0 || dialog.count("OnFileNameOK") == 0);
        if (row.prepare == toOpenWhatExists) {
            EXPECT_THAT(seen.arguments,
                        testing::ElementsAre(std::pair(CString(L"FeatureName"), CString(L"Open a plan")),
                                             std::pair(CString(L"FileName"), CString(L"missing.dwg"))));
        }
    }
}

TEST_F(DialogOpen, Cancel_LeavesTheProcessWhereItWas) {
    const std::filesystem::path before = std::filesystem::current_path();
    const DWORD errorMode = GetThreadErrorMode();
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.check([] { EXPECT_TRUE(GetThreadErrorMode() & SEM_FAILCRITICALERRORS) << "an empty drive brings up a box"; });
    EXPECT_EQ(user.press(VK_ESCAPE).run(), IDCANCEL);
    EXPECT_EQ(std::filesystem::current_path(), before);
    EXPECT_EQ(GetThreadErrorMode(), errorMode);
}

TEST_F(DialogOpen, RememberedFolderThatIsGone_FallsBackToOneThatExists) {
    TestDialog dialog(folder.path());
    dialog.SetDialogData(L"InitialDirectory", folder.path(L"gone"));
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    PathRemoveFileSpecW(program);
    EXPECT_EQ(DialogUser(dialog).untilFolder(program).cancel().run(), IDCANCEL);
}

TEST_F(DialogOpen, SameObjectRunsAgain_AndStartsEmpty) {
    folder.addFile(L"plan.dwg");
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).type(L"plan.dwg").ok().run(), IDOK);
    EXPECT_EQ(DialogUser(dialog).check([] { EXPECT_EQ(fileNameText(), L""); }).cancel().run(), IDCANCEL);
    EXPECT_EQ(DialogUser(dialog).type(L"plan.dwg").ok().run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"plan.dwg"}));
}

TEST_F(DialogOpen, TenThousandFiles_OpenAndPick) {
    constexpr int kFiles = 10'000;
    addNumbered(kFiles);
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.until("all files", [] { return ListView_GetItemCount(viewList()) == kFiles; }).check([] {
        ListView_SetItemState(viewList(), 7777, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    });
    user.untilName(L"plan07777.dwg").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"plan07777.dwg"}));
}

TEST_F(DialogOpen, AllOfAThousandFiles_AreNamedAndOpened) {
    constexpr int kFiles = 1'000;
    addNumbered(kFiles);
    TestDialog dialog(folder.path());
    dialog.SetMultiSelectAllowed(1);
    DialogUser user(dialog);
    user.until("all files", [] { return ListView_GetItemCount(viewList()) == kFiles; }).check([] {
        ListView_SetItemState(viewList(), 0, LVIS_FOCUSED, LVIS_FOCUSED);
        ListView_SetItemState(viewList(), -1, LVIS_SELECTED, LVIS_SELECTED);
    });
    constexpr std::size_t kLength = kFiles * std::string_view("\"plan00000.dwg\" ").size() - 1;
    user.until("all names", [] { return fileNameText().size() == kLength; }).ok();
    EXPECT_EQ(user.run(), IDOK);
    const std::vector<std::wstring> chosen = dialog.chosen();
    EXPECT_EQ(std::set(chosen.begin(), chosen.end()).size(), std::size_t{kFiles});
    EXPECT_THAT(chosen, testing::Contains(wide(folder.path(L"plan00999.dwg"))));
}

}  // namespace
}  // namespace knav::test
