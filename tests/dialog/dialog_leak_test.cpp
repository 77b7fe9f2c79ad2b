// Opening and closing the dialog again and again, and folders that misbehave.
#include <knav/NavViewMode.h>
#include <platform/WindowMessages.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/DialogUser.h"
#include "support/ObjectCounts.h"
#include "support/TestExtension.h"

namespace knav::test {
namespace {

/// Shows another folder, changes the view, and cancels itself, each as soon as there is nothing else to do.
class RestlessDialog : public TestDialog {
public:
    RestlessDialog(const CString& start, const CString& next, unsigned mode)
        : TestDialog(start), m_next(next), m_mode(mode) {}

protected:
    LRESULT onIdle(WPARAM wParam, LPARAM lParam) {
        if (OnKickIdle(wParam, lParam)) {
            return TRUE;
        }
        switch (m_step++) {
            case 0:
                EXPECT_TRUE(NavigateToFolder(m_next));
                return TRUE;
            case 1:
                EXPECT_NE(GetViewMode(), m_mode);
                SetViewMode(m_mode);
                return TRUE;
            case 2:
                EXPECT_EQ(shownFolder(), m_next);
                EXPECT_EQ(GetViewMode(), m_mode);
                PostMessage(WM_COMMAND, IDCANCEL);
                return FALSE;
            default:
                return FALSE;
        }
    }
    DECLARE_MESSAGE_MAP()

private:
    const CString m_next;
    const unsigned m_mode;
    int m_step = 0;
};
BEGIN_MESSAGE_MAP(RestlessDialog, TestDialog)
ON_MESSAGE(WM_KICKIDLE, &RestlessDialog::onIdle)
END_MESSAGE_MAP()

class DialogLeakInMode : public DialogTest, public testing::WithParamInterface<unsigned> {};

TEST_P(DialogLeakInMode, FiftyOpeningsBrowsesAndChangesOfView_LeaveNothingBehind) {
    folder.addFile(L"a.dwg");
    const CString next = folder.addFolder(L"sub");
    folder.addFile(L"sub\\b.dwg");
    EXPECT_EQ(growthOver(50,
                         [&] {
                             RestlessDialog dialog(folder.path(), next, GetParam());
                             EXPECT_EQ(dialog.DoModal(), IDCANCEL);
                         }),
              ObjectCounts{});
}

// The dialogs start with details. Four times fifty, so that each is done in the time that a test has.
INSTANTIATE_TEST_SUITE_P(Modes, DialogLeakInMode,
                         testing::Values(NavViewLargeIcons, NavViewSmallIcons, NavViewList, NavViewThumbnails));

class DialogLeak : public DialogTest {};

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

class DialogBrokenFolder : public DialogTest, public testing::WithParamInterface<Conduct> {};

TEST_P(DialogBrokenFolder, WhateverItsMethodsDo_TheDialogGoesOn) {
    const CString file = folder.addFile(L"a.dwg");
    RegisteredForTest extensions;
    const auto store = FakeFolder::make(L"store://");
    store->add(L"item", SFGAO_FOLDER);
    const auto root = ItemList::copyOf(extensions.add(L"Store", store).GetID());
    store->setAll(GetParam());
    TestDialog dialog(folder.path());
    auto& implementation = *static_cast<CNavDialogImp*>(dialog.GetImpObject());
    DialogUser user(dialog);
    user.untilShown({L"a.dwg"}).check([&] {
        const HWND lookIn = DialogDriver::control(IDC_KNAV_LOOK_IN);
        SendMessageW(lookIn, CB_SHOWDROPDOWN, TRUE, 0);
        SendMessageW(lookIn, CB_SHOWDROPDOWN, FALSE, 0);
        EXPECT_FALSE(implementation.NavigateToItemList(root.get()));
    });
    user.settle().check([&] { EXPECT_EQ(dialog.shownFolder(), folder.path()); }).type(L"a").ok();
    EXPECT_EQ(user.run(), IDOK);
    EXPECT_EQ(dialog.chosen(), std::vector{wide(file)});
}

INSTANTIATE_TEST_SUITE_P(Conducts, DialogBrokenFolder,
                         testing::Values(Conduct::Fails, Conduct::Faults, Conduct::Throws));

}  // namespace
}  // namespace knav::test
