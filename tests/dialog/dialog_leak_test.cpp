// Opening and closing the dialog again and again, and folders that misbehave.
#include <knav/CNavExtensionArray.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/DialogUser.h"
#include "shell/RegisteredExtensions.h"
#include "support/FakeFolder.h"
#include "support/ObjectCounts.h"

namespace knav::test {
namespace {

class DialogLeak : public DialogTest {};

TEST_F(DialogLeak, FiftyRuns_LeaveNothingBehind) {
    folder.addFile(L"a.dwg");
    EXPECT_EQ(growthOver(50,
                         [&] {
                             TestDialog dialog(folder.path());
                             EXPECT_EQ(DialogUser(dialog).untilShown({L"a.dwg"}).cancel().run(), IDCANCEL);
                         }),
              ObjectCounts{});
}

TEST_F(DialogLeak, MovingAroundAndChoosing_LeavesNothingBehind) {
    // The system's own list of recent documents grows.
    constexpr DWORD on = 1;
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
                    L"NoRecentDocsHistory", REG_DWORD, &on, sizeof on);
    folder.addFile(L"a.dwg");
    folder.addFile(L"sub\\b.dwg");
    EXPECT_EQ(growthOver(5,
                         [&] {
                             TestDialog dialog;
                             dialog.SetForceInitialFolder(folder.path());
                             DialogUser user(dialog);
                             user.doubleClick(L"sub").untilFolder(folder.path(L"sub")).command(IDM_KNAV_UP);
                             user.untilFolder(folder.path()).pick({L"a.dwg"}).untilName(L"a.dwg").ok();
                             EXPECT_EQ(user.run(), IDOK);
                         }),
              ObjectCounts{});
}

TEST_F(DialogLeak, DialogThatIsNeverShown_LeavesNothingBehind) {
    EXPECT_EQ(growthOver(20, [&] { TestDialog dialog(folder.path()); }), ObjectCounts{});
}

/// A registered extension whose folder does what it is told, for as long as this lives.
class BrokenStore {
public:
    explicit BrokenStore(Conduct conduct) {
        m_folder->add(L"item", SFGAO_FOLDER);
        CNavExtension& extension = *registeredExtensions().AddData();
        extension.SetName(L"Store");
        extension.CreateID();
        extension.SetRootFolder(m_folder.get());
        m_root = ItemList::copyOf(extension.GetID());
        m_folder->setAll(conduct);
    }
    BrokenStore(const BrokenStore&) = delete;
    BrokenStore& operator=(const BrokenStore&) = delete;
    ~BrokenStore() { registeredExtensions().RemoveAllData(); }

    ITEMIDLIST* root() const { return m_root.get(); }

private:
    ComPtr<FakeFolder> m_folder = FakeFolder::make(L"store://");
    ItemList m_root;
};

class DialogBrokenFolder : public DialogTest, public testing::WithParamInterface<Conduct> {};

TEST_P(DialogBrokenFolder, WhateverItsMethodsDo_TheDialogGoesOn) {
    const CString file = folder.addFile(L"a.dwg");
    const BrokenStore store(GetParam());
    TestDialog dialog(folder.path());
    auto& implementation = *static_cast<CNavDialogImp*>(dialog.GetImpObject());
    DialogUser user(dialog);
    user.untilShown({L"a.dwg"}).check([&] {
        const HWND lookIn = DialogDriver::control(IDC_KNAV_LOOK_IN);
        SendMessageW(lookIn, CB_SHOWDROPDOWN, TRUE, 0);
        SendMessageW(lookIn, CB_SHOWDROPDOWN, FALSE, 0);
        EXPECT_FALSE(implementation.NavigateToItemList(store.root()));
    });
    user.settle().check([&] { EXPECT_EQ(dialog.shownFolder(), folder.path()); }).type(L"a").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_EQ(dialog.chosen(), std::vector{wide(file)});
}

INSTANTIATE_TEST_SUITE_P(Conducts, DialogBrokenFolder,
                         testing::Values(Conduct::Fails, Conduct::Faults, Conduct::Throws));

}  // namespace
}  // namespace knav::test
