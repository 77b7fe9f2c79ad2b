// Choosing a file in a dialog that opens files.
#include <knav/CNavPathname.h>

#include "dialog/DialogUser.h"
#include "dialog/Messages.h"
#include "support/RealNamespace.h"

namespace knav::test {
namespace {

using testing::ElementsAre;

class DialogOpen : public DialogTest {};

TEST_F(DialogOpen, TypedName_GivesOneItemWithItsFullPath) {
    const CString file = folder.addFile(L"plan.dwg");
    TestDialog dialog(folder.path());
    dialog.data.AddData()->SetText(L"left by an earlier run");
    EXPECT_EQ(DialogUser(dialog).type(L"  plan.dwg ").ok().run(), IDOK);

    ASSERT_THAT(dialog.chosen(), ElementsAre(wide(file)));
    const CNavData& item = *dialog.data.GetData(0);
    EXPECT_EQ(item.GetDataType(), NAV_DATA_FILE);
    EXPECT_EQ(item.GetPathname()->GetType(), CZoUiPathname::ExistingFile);
    EXPECT_TRUE(item.GetPathname()->Exists());
    CString path;
    dialog.GetSingleDataFullPath(path);
    EXPECT_EQ(path, file);
}

struct TypedRow {
    const char* why;
    const wchar_t* typed;
    const wchar_t* file;  // relative to the folder
};

TEST_F(DialogOpen, TypedForms_NameTheSameFile) {
    folder.addFile(L"plan.dwg");
    folder.addFile(L"sub\\part.dwg");
    folder.addFile(L"a b\\two words.dwg");
    SetEnvironmentVariableW(L"KNAV_TEST_DIR", folder.path(L"sub"));
    constexpr TypedRow rows[] = {
        {"the extension of the file type is added", L"plan", L"plan.dwg"},
        {"case does not matter", L"PLAN.DWG", L"PLAN.DWG"},
        {"a path below the folder", L"sub\\part", L"sub\\part.dwg"},
        {"slashes", L"sub/part.dwg", L"sub\\part.dwg"},
        {"dots are resolved", L"sub\\..\\plan.dwg", L"plan.dwg"},
        {"a variable", L"%KNAV_TEST_DIR%\\part", L"sub\\part.dwg"},
        {"blanks inside names", L"a b\\two words", L"a b\\two words.dwg"},
    };
    for (const TypedRow& row : rows) {
        SCOPED_TRACE(row.why);
        TestDialog dialog(folder.path());
        EXPECT_EQ(DialogUser(dialog).type(row.typed).ok().run(), IDOK);
        CString path;
        ASSERT_EQ(dialog.data.GetCount(), 1);
        dialog.data.GetData(0)->GetPathname()->GetFullPath(path);
        EXPECT_EQ(path, folder.path(row.file));
        EXPECT_EQ(dialog.data.GetData(0)->GetDataType(), NAV_DATA_FILE);
    }
}

TEST_F(DialogOpen, SelectedItem_IsShownInTheFieldAndReturned) {
    folder.addFile(L"a.dwg");
    const CString second = folder.addFile(L"b.dwg");
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.pick({L"a.dwg"}).untilName(L"a.dwg").pick({L"b.dwg"}).untilName(L"b.dwg").ok();
    EXPECT_EQ(user.run(), IDOK);
    ASSERT_THAT(dialog.chosen(), ElementsAre(wide(second)));
    EXPECT_NE(dialog.data.GetData(0)->GetID(), nullptr);
}

TEST_F(DialogOpen, NameTypedOverASelection_Wins) {
    folder.addFile(L"a.dwg");
    const CString typed = folder.addFile(L"b.dwg");
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).pick({L"a.dwg"}).untilName(L"a.dwg").type(L"b.dwg").ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(typed)));
    DialogUser user(dialog);
    user.pick({L"a.dwg"}).untilName(L"a.dwg").type(L"b.dwg").doubleClick(L"a.dwg");
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"a.dwg")))) << "but not over what is double-clicked";
}

TEST_F(DialogOpen, DoubleClickOnFile_ClosesWithIt) {
    const CString file = folder.addFile(L"a.dwg");
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).doubleClick(L"a.dwg").run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(file)));
}

TEST_F(DialogOpen, DoubleClickOnFolder_EntersItAndStaysOpen) {
    folder.addFile(L"sub\\inner.dwg");
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.doubleClick(L"sub").untilFolder(folder.path(L"sub")).untilShown({L"inner.dwg"}).cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
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
    const CString file = folder.addFile(L"sub\\inner.dwg");
    addShortcut(folder, L"file.lnk", file);
    addShortcut(folder, L"folder.lnk", folder.path(L"sub"));
    TestDialog dialog;
    dialog.SetForceInitialFolder(folder.path());
    dialog.SetForceFilterIndex(kAllFiles);
    EXPECT_EQ(DialogUser(dialog).doubleClick(L"folder").untilFolder(folder.path(L"sub")).cancel().run(), IDCANCEL);
    EXPECT_EQ(DialogUser(dialog).pick({L"file"}).ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(file)));
}

TEST_F(DialogOpen, EnterInTheField_IsOk) {
    const CString file = folder.addFile(L"plan.dwg");
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).type(L"plan.dwg").press(VK_RETURN).run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(file)));
}

TEST_F(DialogOpen, NothingTyped_OkStaysOpenWithoutAWord) {
    for (const wchar_t* const nothing : {L"", L"   "}) {
        TestDialog dialog(folder.path());
        EXPECT_EQ(DialogUser(dialog).type(nothing).ok().settle().cancel().run(), IDCANCEL);
        EXPECT_EQ(dialog.data.GetCount(), 0);
    }
}

TEST_F(DialogOpen, TypedFolder_IsEnteredAndEmptiesTheField) {
    const CString inner = folder.addFile(L"sub\\inner.dwg");
    std::wstring url = L"file:///" + wide(folder.path(L"sub"));
    std::ranges::replace(url, L'\\', L'/');
    for (const std::wstring& typed : {std::wstring(L"sub"), std::wstring(L"sub\\"), wide(folder.path(L"sub")), url}) {
        SCOPED_TRACE(utf8(typed));
        TestDialog dialog;
        dialog.SetForceInitialFolder(folder.path());
        DialogUser user(dialog);
        user.type(typed).ok().untilFolder(folder.path(L"sub")).untilName(L"").type(L"inner").ok();
        EXPECT_EQ(user.run(), IDOK);
        EXPECT_THAT(dialog.chosen(), ElementsAre(wide(inner)));
    }
}

TEST_F(DialogOpen, TypedParent_GoesUp) {
    folder.addFile(L"sub\\inner.dwg");
    TestDialog dialog(folder.path(L"sub"));
    EXPECT_EQ(DialogUser(dialog).type(L"..").ok().untilFolder(folder.path()).cancel().run(), IDCANCEL);
}

TEST_F(DialogOpen, TypedPattern_FiltersAndStaysOpen) {
    folder.addFile(L"a.dwg");
    folder.addFile(L"b.txt");
    folder.addFile(L"b2.txt");
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.untilShown({L"a.dwg"}).type(L"b?.txt").ok().untilShown({L"b2.txt"}).cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
}

struct RefusedRow {
    const char* why;
    std::wstring typed;
    const wchar_t* name;  // of the task dialog, or empty
    std::wstring text;    // of the message box, or empty
};

TEST_F(DialogOpen, UnusableName_IsReportedAndKeptForRetyping) {
    const std::wstring missing = wide(folder.path(L"nosuch\\plan.dwg"));
    const RefusedRow rows[] = {
        {"a missing folder", L"nosuch\\plan.dwg", L"", wide(messageText(IDS_KNAV_INVALID_PATH, missing.c_str()))},
        {"a missing drive", L"q:\\x.dwg", L"", wide(messageText(IDS_KNAV_NO_DRIVE, L"Q:"))},
        {"characters that no name can hold", L"a|b.dwg", L"Standard.Object.UnsupportCharacters", L""},
        {"an unpaired quote", L"\"a", L"Standard.Object.UnsupportCharacters", L""},
        {"a name too long for a path", std::wstring(250, L'n'), L"Standard.InvalidName.TooLong", L""},
    };
    for (const RefusedRow& row : rows) {
        SCOPED_TRACE(row.why);
        ScriptedPrompts& asked = prompts;
        const std::size_t before = asked.seen().size();
        asked.answer(IDOK);
        TestDialog dialog(folder.path());
        dialog.SetDialogCaption(L"Open a plan");
        DialogUser user(dialog);
        user.type(row.typed).ok().untilAsked(asked, before + 1).settle();
        user.check([&] { expectNameReadyToRetype(row.typed); }).cancel();
        EXPECT_EQ(user.run(), IDCANCEL);
        ASSERT_EQ(asked.seen().size(), before + 1);
        EXPECT_EQ(asked.seen().back().name, CString(row.name));
        if (!row.text.empty()) {
            EXPECT_EQ(asked.seen().back().text, CString(row.text.c_str()));
        }
    }
}

TEST_F(DialogOpen, Cancel_LeavesTheProcessWhereItWas) {
    wchar_t before[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, before);
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).press(VK_ESCAPE).run(), IDCANCEL);
    wchar_t after[MAX_PATH];
    GetCurrentDirectoryW(MAX_PATH, after);
    EXPECT_STREQ(before, after);
}

TEST_F(DialogOpen, RememberedFolderThatIsGone_FallsBackToOneThatExists) {
    TestDialog dialog(folder.path());
    dialog.SetDialogData(L"InitialDirectory", folder.path(L"gone"));
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    PathRemoveFileSpecW(program);
    CString shown;
    DialogUser user(dialog);
    user.until("a view", [] { return viewList() != nullptr; }).check([&] { shown = dialog.shownFolder(); }).cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
    EXPECT_EQ(shown, CString(program));
}

TEST_F(DialogOpen, FileType_DecidesWhatIsShownAndWhatIsAdded) {
    folder.addFile(L"a.dwg");
    const CString text = folder.addFile(L"b.txt");
    folder.addFolder(L"sub");
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.untilShown({L"a.dwg", L"sub"});
    user.chooseType(kAllFiles).untilShown({L"a.dwg", L"b.txt", L"sub"});
    user.chooseType(kTexts).untilShown({L"b.txt", L"sub"}).check([&] { EXPECT_EQ(dialog.GetFilterIndex(), kTexts); });
    user.type(L"b").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(text)));
}

TEST_F(DialogOpen, SameObjectRunsAgain_AndStartsEmpty) {
    const CString file = folder.addFile(L"plan.dwg");
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).type(L"plan.dwg").ok().run(), IDOK);
    EXPECT_EQ(DialogUser(dialog).check([] { EXPECT_EQ(fileNameText(), L""); }).cancel().run(), IDCANCEL);
    EXPECT_EQ(DialogUser(dialog).type(L"plan.dwg").ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(file)));
}

TEST_F(DialogOpen, TenThousandFiles_OpenAndPick) {
    constexpr int kFiles = 10'000;
    folder.addFiles(kFiles, [](int number) {
        CString name;
        name.Format(L"plan%05d.dwg", number);
        return name;
    });
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.until("all files", [] { return ListView_GetItemCount(viewList()) == kFiles; }).check([] {
        ListView_SetItemState(viewList(), 7777, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    });
    user.untilName(L"plan07777.dwg").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"plan07777.dwg"))));
}

}  // namespace
}  // namespace knav::test
