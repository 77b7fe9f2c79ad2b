#include "dialog/BackHistory.h"

#include <gmock/gmock.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

#include "support/ScopedTempFolder.h"

namespace knav::test {
namespace {

class BackHistoryTest : public testing::Test {
protected:
    ItemList folderNamed(const wchar_t* name) const {
        return ItemList::adopt(NavGetQualifiedItemListFromFolderFullPath(folder.addFolder(name)));
    }
    void show(const wchar_t* name) { history.add(folderNamed(name).get()); }
    /// Name of the folder that Back leads to; "" for none.
    std::wstring previous() const {
        const auto list = history.previous();
        CString name;
        if (list) {
            NavGetItemDisplayNameInDesktop(SHGDN_INFOLDER, list.get(), name);
        }
        return std::wstring(name.view());
    }

    ScopedTempFolder folder;
    BackHistory history;
};

TEST_F(BackHistoryTest, FoldersShown_AreGoneBackThroughInTurn) {
    EXPECT_FALSE(history.canGoBack());
    show(L"a");
    EXPECT_FALSE(history.previous());
    show(L"b");
    show(L"b");
    show(L"c");
    EXPECT_EQ(previous(), L"b");
    show(L"b");  // as going back does
    history.wentBack();
    EXPECT_EQ(previous(), L"a");
    show(L"a");
    history.wentBack();
    EXPECT_FALSE(history.canGoBack());

    for (const wchar_t* const name : {L"b", L"gone", L"b", L"gone", L"c"}) {
        show(name);
    }
    history.forgetPrevious();
    EXPECT_EQ(previous(), L"b");
    show(L"b");
    history.wentBack();
    history.forgetPrevious();
    EXPECT_EQ(previous(), L"a") << "b is shown: it is not what lies before";
    history.forgetPrevious();
    EXPECT_FALSE(history.canGoBack());
    history.forgetPrevious();
    EXPECT_FALSE(history.canGoBack());
}

TEST_F(BackHistoryTest, Desktop_IsAFolderLikeOthers) {
    const auto desktop = ItemList::adopt(NavGetDesktopFolderItem(nullptr));
    history.add(desktop.get());
    history.add(desktop.get());
    EXPECT_FALSE(history.canGoBack());
    show(L"a");
    EXPECT_TRUE(NavIsDesktop(history.previous().get()));
    history.add(desktop.get());
    EXPECT_EQ(previous(), L"a");
}

TEST_F(BackHistoryTest, LongHistory_ForgetsTheOldest) {
    for (int i = 0; i < 70; ++i) {
        show(i % 2 == 0 ? L"a" : L"b");
    }
    int steps = 0;
    for (; history.canGoBack() && steps < 1000; ++steps) {
        history.add(history.previous().get());
        history.wentBack();
    }
    EXPECT_GE(steps, 60);
    EXPECT_LT(steps, 64);
}

}  // namespace
}  // namespace knav::test
