// A folder whose folder object, view or data object misbehaves in one method is shown in the dialog.
#include <knav/NavViewMode.h>

#include "dialog/CNavDialogImp.h"
#include "dialog/DialogUser.h"
#include "dialog/Messages.h"
#include "view/ViewStore.h"

namespace knav::test {
namespace {

class DialogBrokenView : public DialogTest, public testing::WithParamInterface<Conduct> {
protected:
    DialogBrokenView() {
        m_store.script.standardWindow = true;
        m_store.script.selection = {L"item"};
    }

    /// What a user may do while the folder is shown. Returns the name that a new folder would get.
    static CString useFolder(CNavDialogImp& dialog) {
        const HWND list = dialog.folderListCtrl()->GetSafeHwnd();
        LVITEMW row{};
        ListView_InsertItem(list, &row);
        ListView_SetItemState(list, 0, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        dialog.SyncEditFieldToBrowser();
        dialog.UpdateUIState();
        MSG key{list, WM_KEYDOWN, VK_F2, 1, 0, {}};
        dialog.PreTranslateMessage(&key);
        dialog.CmdDelete();
        dialog.Refresh();
        dialog.setFileNameText(L"item");
        dialog.SyncBrowserToEditField();
        dialog.browser().SetViewMode(dialog.browser().GetViewMode() == NavViewList ? NavViewDetails : NavViewList);
        return dialog.GetNewFolderNameToAdd();
    }

    ViewStore m_store{SFGAO_FOLDER | SFGAO_FILESYSTEM};
};

TEST_P(DialogBrokenView, InWhicheverMethod_TheDialogStaysOpenAndUsable) {
    const CString file = folder.addFile(L"a.dwg");
    TestDialog dialog(folder.path());
    auto& implementation = *static_cast<CNavDialogImp*>(dialog.GetImpObject());
    const auto goThereAndBack = [&](const Misconduct& bad) {
        EXPECT_TRUE(implementation.NavigateToItemList(m_store.root()));
        m_store.folder->setOnly(bad);
        const CString newFolder = useFolder(implementation);
        EXPECT_TRUE(!bad.empty() || newFolder == messageText(IDS_KNAV_NEW_FOLDER_NAME)) << "an empty folder has room";
        EXPECT_TRUE(implementation.NavigateToFolder(folder.path()));
        EXPECT_EQ(shownNames(), std::vector<std::wstring>{L"a.dwg"});
        if (!implementation.NavigateToItemList(m_store.root())) {
            EXPECT_EQ(dialog.shownFolder(), folder.path());
            EXPECT_EQ(shownNames(), std::vector<std::wstring>{L"a.dwg"});
        }
        m_store.folder->setOnly({});
    };
    DialogUser user(dialog);
    user.untilShown({L"a.dwg"}).check([&] {
        for (const FolderCall call : reachedMethods(m_store, goThereAndBack)) {
            SCOPED_TRACE(static_cast<int>(call));
            goThereAndBack({{call, GetParam()}});
        }
        EXPECT_TRUE(implementation.NavigateToFolder(folder.path()));
    });
    EXPECT_EQ(user.settle().type(L"a").ok().run(), IDOK);
    EXPECT_EQ(dialog.chosen(), std::vector{wide(file)});
}

INSTANTIATE_TEST_SUITE_P(Conducts, DialogBrokenView, testing::Values(Conduct::Fails, Conduct::Faults, Conduct::Throws));

}  // namespace
}  // namespace knav::test
