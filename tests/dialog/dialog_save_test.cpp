// Choosing a name to save under, several files, and folders.
#include <knav/CNavPathname.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>

#include "dialog/DialogUser.h"
#include "dialog/Messages.h"
#include "shell/ScopedHandle.h"
#include "support/RealNamespace.h"

namespace knav::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SaveDialog : TestDialog {
    explicit SaveDialog(const wchar_t* folder) : TestDialog(folder) {
        SetDialogCaption(L"Save Plan");
        SetCreatingFile(1);
        SetConfirmReplace(1);
    }
};

class DialogSave : public DialogTest {};

struct NameRow {
    const char* why;
    const wchar_t* typed;
    int type;
    const wchar_t* saved;  // relative to the folder
};

TEST_F(DialogSave, TypedName_GetsTheExtensionOfTheFileType) {
    constexpr NameRow rows[] = {
        {"no extension", L"plan", kDrawings, L"plan.dwg"},
        {"an extension of no file type", L"plan.bak", kDrawings, L"plan.bak.dwg"},
        {"the extension of another file type", L"plan.txt", kDrawings, L"plan.txt"},
        {"all files", L"plan", kAllFiles, L"plan"},
        {"stray blanks", L" plan . dwg ", kDrawings, L"plan .dwg"},
    };
    for (const NameRow& row : rows) {
        SCOPED_TRACE(row.why);
        SaveDialog dialog(folder.path());
        dialog.SetForceFilterIndex(row.type);
        EXPECT_EQ(DialogUser(dialog).type(row.typed).ok().run(), IDOK);
        ASSERT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(row.saved))));
        EXPECT_EQ(dialog.data.GetData(0)->GetDataType(), NAV_DATA_FILE);
    }
}

TEST_F(DialogSave, AnyExtensionAccepted_StandsAsTyped) {
    SaveDialog dialog(folder.path());
    dialog.SetAcceptAnyFileExtension(1);
    EXPECT_EQ(DialogUser(dialog).type(L"plan.bak").ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"plan.bak"))));
}

TEST_F(DialogSave, ExistingFile_IsReplacedOnlyWhenTheUserAgrees) {
    folder.addFile(L"plan.dwg");
    folder.addFile(L"site .dwg");
    constexpr std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"plan", L"plan.dwg"},
        {L"plan .dwg", L"plan.dwg"},
        {L"site .dwg", L"site .dwg"},
        {L"\"new\" \"plan\"", L"plan.dwg"},
    };
    for (const auto& [typed, asked] : rows) {
        SCOPED_TRACE(utf8(typed));
        const std::size_t before = prompts.seen().size();
        prompts.answer(IDNO).answer(IDYES);
        SaveDialog dialog(folder.path());
        dialog.SetMultiSelectAllowed(1);
        DialogUser user(dialog);
        user.type(typed).ok().untilAsked(prompts, before + 1).settle();
        user.check([&typed] { expectNameReadyToRetype(typed); }).ok();
        EXPECT_EQ(user.run(), IDOK);
        ASSERT_EQ(prompts.seen().size(), before + 2);
        const auto& question = prompts.seen()[before];
        EXPECT_EQ(question.text, messageText(IDS_KNAV_REPLACE, folder.path(asked)));
        EXPECT_EQ(question.flags, static_cast<UINT>(MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2));
        EXPECT_NE(question.owner, nullptr);
    }
}

TEST_F(DialogSave, NewFileOrUnaskedFor_IsSavedWithoutAWord) {
    folder.addFile(L"plan.dwg");
    SaveDialog fresh(folder.path());
    EXPECT_EQ(DialogUser(fresh).type(L"other").ok().run(), IDOK);
    SaveDialog unasked(folder.path());
    unasked.SetConfirmReplace(0);
    EXPECT_EQ(DialogUser(unasked).type(L"plan").ok().run(), IDOK);
}

TEST_F(DialogSave, FileHeldOpenElsewhere_IsNotOfferedForReplacement) {
    const std::pair<const wchar_t*, UINT> rows[] = {
        {L"sheet.PDF", IDS_KNAV_PDF_IN_USE_TITLE},
        {L"web.vmfx", IDS_KNAV_DRAWING_IN_USE_TITLE},
    };
    for (const auto& [name, title] : rows) {
        SCOPED_TRACE(utf8(name));
        const std::size_t before = prompts.seen().size();
        const CString file = folder.addFile(name);
        SaveDialog dialog(folder.path());
        dialog.SetForceFilterIndex(kAllFiles);
        {
            const HANDLE held = CreateFileW(file, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
            ASSERT_NE(held, INVALID_HANDLE_VALUE);
            prompts.answer(IDOK);
            DialogUser user(dialog);
            user.type(name).ok().untilAsked(prompts, before + 1).check([held] { CloseHandle(held); });
            prompts.answer(IDYES);
            user.ok();
            EXPECT_EQ(user.run(), IDOK) << "once it is free, only the usual question is asked";
        }
        ASSERT_EQ(prompts.seen().size(), before + 2);
        EXPECT_EQ(prompts.seen()[before].text, messageText(IDS_KNAV_FILE_IN_USE, file));
        EXPECT_EQ(prompts.seen()[before].flags, static_cast<UINT>(MB_OK | MB_ICONWARNING));
        EXPECT_EQ(prompts.seen()[before + 1].text, messageText(IDS_KNAV_REPLACE, file));
    }
}

TEST_F(DialogSave, PickedFile_KeepsItsNameWhenTheFolderChanges) {
    folder.addFile(L"plan.dwg");
    folder.addFolder(L"sub");
    SaveDialog dialog(folder.path());
    DialogUser user(dialog);
    user.pick({L"plan.dwg"}).untilName(L"plan.dwg").doubleClick(L"sub").untilFolder(folder.path(L"sub")).settle();
    user.check([] { EXPECT_EQ(fileNameText(), L"plan.dwg"); }).ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"sub\\plan.dwg"))));
}

TEST_F(DialogSave, ShortcutClickedBesideATypedName_IsOpenedButNotSavedOver) {
    addShortcut(folder, L"away.lnk", folder.addFile(L"target.dwg"));
    addShortcut(folder, L"there.lnk", folder.addFolder(L"sub"));
    SaveDialog dialog(folder.path());
    dialog.SetForceFilterIndex(kAllFiles);
    DialogUser user(dialog);
    user.type(L"plan.dwg").pick({L"away"}).pick({L"there"}).doubleClick(L"there").untilFolder(folder.path(L"sub"));
    EXPECT_EQ(user.command(IDM_KNAV_BACK).untilFolder(folder.path()).pick({L"away"}).ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"plan.dwg"))));
}

TEST_F(DialogSave, OtherFileType_ChangesTheExtensionInTheField) {
    SaveDialog dialog(folder.path());
    DialogUser user(dialog);
    user.type(L"plan.dwg").chooseType(kTexts).untilName(L"plan.txt").chooseType(kDrawings).untilName(L"plan.dwg");
    user.ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"plan.dwg"))));
}

TEST_F(DialogSave, FileThatMustExist_IsMissed) {
    prompts.answer(IDOK);
    TestDialog dialog(folder.path());
    dialog.SetDialogCaption(L"Open Plan");
    dialog.SetConfirmReplace(1);
    DialogUser user(dialog);
    user.type(L"missing.dwg").ok().untilAsked(prompts).settle();
    user.check([] { expectNameReadyToRetype(L"missing.dwg"); }).cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
    ASSERT_EQ(prompts.seen().size(), 1u);
    EXPECT_EQ(prompts.seen()[0].name, L"Standard.FileNotFound");
    EXPECT_THAT(prompts.seen()[0].arguments, ElementsAre(std::pair(CString(L"FeatureName"), CString(L"Open Plan")),
                                                         std::pair(CString(L"FileName"), CString(L"missing.dwg"))));
}

TEST_F(DialogSave, FileThatMustExist_IsAcceptedMissingAmongSeveral) {
    TestDialog dialog(folder.path());
    dialog.SetConfirmReplace(1);
    dialog.SetMultiSelectAllowed(1);
    EXPECT_EQ(DialogUser(dialog).type(L"missing.dwg").ok().run(), IDOK);
}

class DialogSeveral : public DialogTest {
protected:
    void SetUp() override {
        for (const wchar_t* const name : {L"a.dwg", L"b c.dwg", L"d.dwg"}) {
            folder.addFile(name);
        }
    }
    std::vector<std::wstring> paths(std::initializer_list<const wchar_t*> names) const {
        std::vector<std::wstring> all;
        for (const wchar_t* const name : names) {
            all.push_back(wide(folder.path(name)));
        }
        return all;
    }
};

TEST_F(DialogSeveral, QuotedNames_GiveOneItemEach) {
    TestDialog dialog(folder.path());
    dialog.SetMultiSelectAllowed(1);
    EXPECT_EQ(DialogUser(dialog).type(L"\"a.dwg\" \"b c\" \"d.dwg\"").ok().run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"a.dwg", L"b c.dwg", L"d.dwg"}));
    for (int i = 0; i < dialog.data.GetCount(); ++i) {
        EXPECT_EQ(dialog.data.GetData(i)->GetDataType(), NAV_DATA_FILE);
        EXPECT_TRUE(dialog.data.GetData(i)->GetPathname()->Exists()) << i;
    }
    CString single = L"untouched";
    dialog.GetSingleDataFullPath(single);
    EXPECT_EQ(single, L"");
}

TEST_F(DialogSeveral, SelectedItems_AreNamedInQuotesAndReturned) {
    TestDialog dialog(folder.path());
    dialog.SetMultiSelectAllowed(1);
    DialogUser user(dialog);
    user.pick({L"a.dwg", L"b c.dwg", L"d.dwg"});
    user.until("three names", [] { return std::ranges::count(fileNameText(), L'"') == 6; }).ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_THAT(dialog.chosen(), testing::UnorderedElementsAreArray(paths({L"a.dwg", L"b c.dwg", L"d.dwg"})));
}

TEST_F(DialogSeveral, WithoutMultiSelection_OnlyOneItemCanBeSelected) {
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.pick({L"a.dwg", L"d.dwg"}).untilName(L"d.dwg").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"d.dwg"}));
}

class DialogFolders : public DialogTest {
protected:
    void SetUp() override {
        folder.addFile(L"plan.dwg");
        folder.addFile(L"sub\\inner.dwg");
    }
};

TEST_F(DialogFolders, FoldersOnly_ReturnsTheFolderShown) {
    TestDialog dialog(folder.path());
    dialog.SetFoldersOnly(1);
    DialogUser user(dialog);
    user.untilShown({L"sub"}).check([] {
        for (const UINT id :
             {IDC_KNAV_FILE_NAME, IDC_KNAV_FILE_NAME_LABEL, IDC_KNAV_FILE_TYPE, IDC_KNAV_FILE_TYPE_LABEL}) {
            EXPECT_FALSE(IsWindowVisible(DialogDriver::control(id))) << id;
            EXPECT_FALSE(IsWindowEnabled(DialogDriver::control(id))) << id;
        }
    });
    user.ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path())));
    EXPECT_EQ(dialog.GetReadOnlyAllowed(), 0);
    EXPECT_EQ(dialog.GetToolsMenuItemsPresent() & (NavToolsFind | NavToolsLocate), 0u);
}

TEST_F(DialogFolders, FoldersOnly_ReturnsTheSelectedFolder) {
    TestDialog selecting(folder.path());
    selecting.SetFoldersOnly(1);
    EXPECT_EQ(DialogUser(selecting).pick({L"sub"}).ok().run(), IDOK);
    EXPECT_THAT(selecting.chosen(), ElementsAre(wide(folder.path(L"sub"))));

    TestDialog clicking;
    clicking.SetForceInitialFolder(folder.path());
    clicking.SetFoldersOnly(1);
    EXPECT_EQ(DialogUser(clicking).doubleClick(L"sub").run(), IDOK);
    EXPECT_THAT(clicking.chosen(), ElementsAre(wide(folder.path(L"sub"))));
}

TEST_F(DialogFolders, FoldersOnly_HostThatMovesOnInsideOk_CanBeAnsweredWithOkAgain) {
    struct Moving : TestDialog {
        using TestDialog::TestDialog;
        int OnFileNameOK() override { return moves-- > 0 ? !NavigateToFolder(target) : TestDialog::OnFileNameOK(); }
        int moves = 1;
        CString target;
    };
    Moving dialog(folder.path());
    dialog.SetFoldersOnly(1);
    dialog.target = folder.path(L"sub");
    EXPECT_EQ(DialogUser(dialog).ok().untilFolder(dialog.target).settle().ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(dialog.target)));
}

TEST_F(DialogFolders, ReturnFolderMode_ReturnsTheCurrentFolderForNothing) {
    const FileDialogAllowReturnFolderEnabler mode;
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).untilShown({L"plan.dwg", L"sub"}).ok().run(), IDOK);
    ASSERT_THAT(dialog.chosen(), ElementsAre(wide(folder.path())));
    EXPECT_EQ(dialog.data.GetData(0)->GetPathname()->GetType(), CZoUiPathname::Directory);
}

TEST_F(DialogFolders, ReturnFolderMode_NamesAndReturnsTheSelectedFolder) {
    const FileDialogAllowReturnFolderEnabler mode;
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).pick({L"sub"}).untilName(L"sub").ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"sub"))));
}

TEST_F(DialogFolders, ReturnFolderMode_KeepsATypedNameWhenNothingIsSelectedAnyMore) {
    const FileDialogAllowReturnFolderEnabler mode;
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    const auto deselect = [] { ListView_SetItemState(viewList(), -1, 0, LVIS_SELECTED); };
    user.pick({L"sub"}).untilName(L"sub").check(deselect).untilName(L"");
    user.pick({L"sub"}).untilName(L"sub").type(L"plan.dwg").check(deselect).settle();
    user.check([] { EXPECT_EQ(fileNameText(), L"plan.dwg"); }).ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path(L"plan.dwg"))));
}

TEST_F(DialogFolders, WithoutThatMode_SelectedFolderIsNotNamed) {
    TestDialog dialog(folder.path());
    DialogUser user(dialog);
    user.pick({L"plan.dwg"}).untilName(L"plan.dwg").pick({L"sub"}).settle();
    user.check([] { EXPECT_NE(fileNameText(), L"sub"); }).cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
}

}  // namespace
}  // namespace knav::test
