// Choosing a name to save under, several files, and folders.
#include <knav/CNavPathname.h>
#include <knav/FileDialogAllowReturnFolderEnabler.h>
#include <platform/ScopedHandle.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/Messages.h"
#include "dialog/RecordingDialog.h"
#include "support/RealNamespace.h"
#include "view/ViewStore.h"

namespace knav::test {
namespace {

using testing::ElementsAre;

struct SaveDialog : RecordingDialog {
    explicit SaveDialog(const wchar_t* folder) : RecordingDialog(folder) {
        SetCreatingFile(1);
        SetConfirmReplace(1);
    }
};

class DialogSave : public DialogTest {};

TEST_F(DialogSave, ExistingFile_IsReplacedOnlyWhenTheUserAgrees) {
    folder.addFile(L"plan.dwg");
    folder.addFile(L"site .dwg");
    const std::pair<std::wstring, const wchar_t*> rows[] = {
        {L"plan", L"plan.dwg"},
        {L"plan .dwg", L"plan.dwg"},
        {L"site .dwg", L"site .dwg"},
        {L"\"new\" \"plan\"", L"plan.dwg"},
        {L"\"new\" \"" + wide(folder.path(L"plan").Mid(2)) + L"\"", L"plan.dwg"},
    };
    for (const auto& [typed, asked] : rows) {
        SCOPED_TRACE(utf8(typed));
        const std::size_t before = prompts.seen().size();
        prompts.answer(IDNO).answer(IDYES);
        SaveDialog dialog(folder.path());
        dialog.SetMultiSelectAllowed(1);
        DialogUser user(dialog);
        user.type(typed).check([] { SetCurrentDirectoryW(L"Z:\\"); }).ok().untilAsked(prompts, before + 1).settle();
        user.check([&typed = typed] { expectNameReadyToRetype(typed); }).ok();
        EXPECT_EQ(user.run(), IDOK);
        ASSERT_EQ(prompts.seen().size(), before + 2);
        const SeenPrompt& question = prompts.seen()[before];
        EXPECT_EQ(question.text, messageText(IDS_KNAV_REPLACE, folder.path(asked)));
        EXPECT_EQ(question.flags, static_cast<UINT>(MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2));
        EXPECT_NE(question.owner, nullptr);
    }
}

TEST_F(DialogSave, InAnExtension_NothingIsSavedAtItsRootAndReplacingIsAsked) {
    const ViewStore store(SFGAO_FOLDER);
    const ItemList site = ItemList::join(store.root(), FakeFolder::item(L"site").get());
    prompts.answer(IDOK).answer(IDNO);
    SaveDialog dialog(folder.path());
    auto& implementation = *static_cast<CNavDialogImp*>(dialog.GetImpObject());
    DialogUser user(dialog);
    user.check([&] { EXPECT_TRUE(implementation.NavigateToItemList(store.root())); });
    user.until("the root", [] { return lookInText() == L"Store"; }).type(L"new").ok().untilAsked(prompts).settle();
    user.check([&] {
        expectNameReadyToRetype(L"new");
        EXPECT_TRUE(implementation.NavigateToItemList(site.get()));
    });
    user.until("the site", [] { return lookInText() == L"site"; }).type(L"item").ok().untilAsked(prompts, 2).settle();
    user.check([] { expectNameReadyToRetype(L"item"); }).cancel();
    EXPECT_EQ(user.run(), IDCANCEL);
    ASSERT_EQ(prompts.seen().size(), 2u);
    EXPECT_EQ(prompts.seen()[0].text, messageText(IDS_KNAV_NO_SAVE_AT_ROOT));
    EXPECT_EQ(prompts.seen()[1].text, messageText(IDS_KNAV_REPLACE_REMOTE, L"site/item"));
}

TEST_F(DialogSave, FileHeldOpenElsewhere_IsNotOfferedForReplacement) {
    for (const wchar_t* const name : {L"sheet.PDF", L"web.vmfx"}) {
        SCOPED_TRACE(utf8(name));
        const std::size_t before = prompts.seen().size();
        const CString file = folder.addFile(name);
        SaveDialog dialog(folder.path());
        dialog.SetForceFilterIndex(kAllFiles);
        ScopedHandle held(CreateFileW(file, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        ASSERT_TRUE(held);
        prompts.answer(IDOK);
        DialogUser user(dialog);
        user.type(name).ok().untilAsked(prompts, before + 1).check([&held] { held = ScopedHandle(); });
        prompts.answer(IDYES);
        EXPECT_EQ(user.ok().run(), IDOK) << "once it is free, only the usual question is asked";
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
    EXPECT_EQ(dialog.chosen(), paths({L"sub\\plan.dwg"}));
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
    user.type(L"\"plan.dwg\"").chooseType(kTexts).settle();
    user.check([] { EXPECT_EQ(fileNameText(), L"\"plan.dwg\""); }).ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"plan.dwg"}));
    EXPECT_EQ(dialog.count("UpdateFileExtension plan.dwg replace"), 1);
}

class DialogSeveral : public DialogTest {
protected:
    void SetUp() override {
        for (const wchar_t* const name : {L"a.dwg", L"b c.dwg", L"d.dwg"}) {
            folder.addFile(name);
        }
    }
};

TEST_F(DialogSeveral, QuotedNames_GiveOneItemEach) {
    RecordingDialog dialog(folder.path());
    dialog.SetMultiSelectAllowed(1);
    EXPECT_EQ(DialogUser(dialog).type(L"\"a.dwg\" \"b c\" \"d.dwg\"").ok().run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"a.dwg", L"b c.dwg", L"d.dwg"}));
    const std::vector<std::string> combined = {"CombineDataTextWithFolderName a.dwg",
                                               "CombineDataTextWithFolderName b c",
                                               "CombineDataTextWithFolderName d.dwg"};
    EXPECT_EQ(dialog.only(combined), combined);
    for (int i = 0; i < dialog.data.GetCount(); ++i) {
        EXPECT_EQ(dialog.data.GetData(i)->GetDataType(), NAV_DATA_FILE);
        EXPECT_TRUE(dialog.data.GetData(i)->GetPathname()->Exists()) << i;
    }
    CString single = L"untouched";
    dialog.GetSingleDataFullPath(single);
    EXPECT_EQ(single, L"");
}

TEST_F(DialogSeveral, WithoutMultiSelection_OnlyOneItemCanBeSelected) {
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).pick({L"a.dwg", L"d.dwg"}).untilName(L"d.dwg").ok().run(), IDOK);
    EXPECT_EQ(dialog.chosen(), paths({L"d.dwg"}));
}

class DialogFolders : public DialogTest {
protected:
    void SetUp() override {
        folder.addFile(L"plan.dwg");
        folder.addFile(L"sub\\inner.dwg");
    }
};

TEST_F(DialogFolders, FoldersOnly_ReturnsTheFolderShownOrDoubleClicked) {
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
    EXPECT_EQ(user.ok().run(), IDOK);
    EXPECT_THAT(dialog.chosen(), ElementsAre(wide(folder.path())));
    EXPECT_EQ(dialog.GetReadOnlyAllowed(), 0);
    EXPECT_EQ(dialog.GetToolsMenuItemsPresent() & (NavToolsFind | NavToolsLocate), 0u);

    TestDialog clicking;
    clicking.SetForceInitialFolder(folder.path());
    clicking.SetFoldersOnly(1);
    EXPECT_EQ(DialogUser(clicking).doubleClick(L"sub").run(), IDOK);
    EXPECT_EQ(clicking.chosen(), paths({L"sub"}));
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
    EXPECT_EQ(dialog.chosen(), paths({L"sub"}));
}

TEST_F(DialogFolders, ReturnFolderMode_NamesAndReturnsTheSelectedFolder) {
    const FileDialogAllowReturnFolderEnabler mode;
    TestDialog dialog(folder.path());
    EXPECT_EQ(DialogUser(dialog).pick({L"sub"}).untilName(L"sub").ok().run(), IDOK);
    ASSERT_EQ(dialog.chosen(), paths({L"sub"}));
    EXPECT_EQ(dialog.data.GetData(0)->GetPathname()->GetType(), CZoUiPathname::Directory);
}

TEST_F(DialogFolders, ReturnFolderMode_PlaceWithoutAPathIsRefusedInTheRightWords) {
    const FileDialogAllowReturnFolderEnabler mode;
    prompts.answer(IDOK);
    TestDialog dialog(L"C:\\");
    DialogUser user(dialog);
    user.command(IDM_KNAV_UP).untilFolder(kMyComputer).ok().untilAsked(prompts).settle();
    EXPECT_EQ(user.check([] { expectNameReadyToRetype(L""); }).cancel().run(), IDCANCEL);
    EXPECT_EQ(prompts.seen()[0].text, messageText(IDS_KNAV_NO_FOLDER_TO_OPEN));
    EXPECT_EQ(dialog.data.GetCount(), 0);
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
