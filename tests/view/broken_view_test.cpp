#include "support/ItemLists.h"
#include "support/ScopedTempFolder.h"
#include "view/ViewHost.h"
#include "view/ViewStore.h"

#include <gmock/gmock.h>

#include <knav/CNavDataArray.h>

namespace {

using namespace knav;
using namespace knav::test;
using testing::ElementsAre;

// A host that can show an ordinary folder and the root of an extension whose view is a test's.
class BrokenView : public testing::Test {
protected:
    BrokenView() { m_temp.addFile(L"a.dwg"); }

    bool browseStore() { return m_host.browser.BrowseObject(m_store.root(), SBSP_ABSOLUTE) != 0; }

    static constexpr std::array kBad{Conduct::Fails, Conduct::Faults, Conduct::Throws};

    ScopedTempFolder m_temp;
    ViewStore m_store;
    ViewScript& m_script = m_store.script;
    FakeFolder& m_folder = *m_store.folder.get();
    ViewHost m_host;
    CNavDataArray m_data;
};

TEST_F(BrokenView, ViewIsMadeWithTheSettingsOfTheBrowser) {
    ASSERT_TRUE(m_host.browse(m_temp.path()));
    IShellView* const previous = m_host.browser.GetCurrentShellView();
    m_host.browser.SetListCtrl(nullptr);
    m_host.browser.StoreViewMode(4);
    ASSERT_TRUE(browseStore());
    EXPECT_EQ(m_script.paramsSize, 56u);
    EXPECT_EQ(m_script.previous, previous);
    EXPECT_EQ(m_script.settings.ViewMode, 4u);
    EXPECT_TRUE(m_script.settings.fFlags & FWF_SINGLESEL);
    const GUID details{0x137E7700, 0x3573, 0x11CF, {0xAE, 0x69, 8, 0, 0x2B, 0x2E, 0x12, 0x62}};
    EXPECT_TRUE(IsEqualGUID(m_script.viewId, details));
    const RECT place{10, 20, 410, 320};
    EXPECT_TRUE(EqualRect(&m_script.place, &place));
    EXPECT_EQ(m_folder.calls(FolderCall::CreateViewWindow), 0);
}

TEST_F(BrokenView, ViewOfTheFirstKind_IsMadeTheOldWay) {
    m_script.offersView2 = false;
    ASSERT_TRUE(browseStore());
    EXPECT_EQ(m_folder.calls(FolderCall::CreateViewWindow), 1);
    EXPECT_EQ(m_folder.calls(FolderCall::CreateViewWindow2), 0);
    m_host.buddy.MoveWindow(0, 0, 100, 50);
    HWND window = nullptr;
    m_host.browser.GetCurrentShellView()->GetWindow(&window);
    RECT place{};
    GetClientRect(window, &place);
    EXPECT_EQ(place.right, 100) << "a view of another class keeps to the placeholder too";
}

TEST_F(BrokenView, ViewThatCannotBeMade_LeavesThePreviousOneInPlaceAndNothingOverIt) {
    ASSERT_TRUE(m_host.browse(m_temp.path()));
    IShellView* const view = m_host.browser.GetCurrentShellView();
    IShellFolder* const folder = m_host.browser.GetCurrentFolder();
    const int windows = m_host.children();
    const auto expectPrevious = [&] {
        EXPECT_FALSE(browseStore());
        EXPECT_EQ(m_host.browser.GetCurrentShellView(), view);
        EXPECT_EQ(m_host.browser.GetCurrentFolder(), folder);
        EXPECT_EQ(m_host.shownPath().CompareNoCase(m_temp.path()), 0);
        EXPECT_THAT(m_host.rows(), ElementsAre(L"a.dwg"));
        EXPECT_EQ(m_host.children(), windows);
        EXPECT_FALSE(m_host.browseOwner.browsing);
        EXPECT_EQ(m_folder.liveObjects(), 1) << "the folder alone";
    };
    for (const bool view2 : {true, false}) {
        m_script.offersView2 = view2;
        const auto creating = view2 ? FolderCall::CreateViewWindow2 : FolderCall::CreateViewWindow;
        for (const Conduct conduct : kBad) {
            m_folder.setOnly({{FolderCall::CreateViewObject, conduct}});
            expectPrevious();
            for (const bool afterwards : {false, true}) {
                m_script.breaksAfterwards = afterwards;
                for (const Conduct destroying : {Conduct::Works, Conduct::Faults}) {
                    m_folder.setOnly({{creating, conduct}, {FolderCall::DestroyViewWindow, destroying}});
                    expectPrevious();
                }
            }
            m_script.breaksAfterwards = false;
        }
        m_folder.setOnly({});
        m_script.makesWindow = false;  // there would be nothing to see
        expectPrevious();
        m_script.makesWindow = true;
    }
}

TEST_F(BrokenView, ViewThatDoesNotTellItsWindow_IsTakenOverAllTheSame) {
    m_script.standardWindow = true;
    m_script.hidesWindow = true;
    ASSERT_TRUE(browseStore());
    HWND window = nullptr;
    m_host.browser.GetCurrentShellView()->GetWindow(&window);
    EXPECT_EQ(m_host.viewHandle(), window);
    EXPECT_NE(m_host.list(), nullptr);
}

TEST_F(BrokenView, QuestionsThatCannotBeAnswered_LeaveTheSettingsAndTheFirstKindOfView) {
    ASSERT_TRUE(browseStore());
    const UINT flags = m_script.settings.fFlags;
    for (const Conduct conduct : kBad) {
        m_folder.setOnly({{FolderCall::GetCurrentInfo, conduct}, {FolderCall::ViewQueryInterface, conduct}});
        m_folder.forgetCalls();
        EXPECT_TRUE(browseStore());
        EXPECT_EQ(m_script.settings.fFlags, flags);
        EXPECT_EQ(m_folder.calls(FolderCall::CreateViewWindow), 1);
    }
}

TEST_F(BrokenView, SelectionThatCannotBeRead_GivesNoItems) {
    m_script.selection = {L"a"};
    ASSERT_TRUE(browseStore());
    for (const FolderCall call : {FolderCall::GetFocusedItem, FolderCall::GetItemObject, FolderCall::GetData}) {
        for (const Conduct conduct : kBad) {
            m_folder.setOnly({{call, conduct}});
            m_data.AddData();
            EXPECT_FALSE(m_host.browser.SendSelectionToData(m_data));
            EXPECT_EQ(m_data.GetCount(), 0);
        }
    }
    m_folder.setOnly({});
    m_script.focusedItem = -1;
    EXPECT_FALSE(m_host.browser.SendSelectionToData(m_data)) << "success without an item is none either";
    m_script.offersFolderView = false;
    EXPECT_TRUE(m_host.browser.SendSelectionToData(m_data)) << "a view that cannot be asked for the focus";
}

TEST_F(BrokenView, SelectionInAnExtension_KeepsItsOrderTextsAndLogin) {
    m_script.selection = {L" b ", L"a"};
    const auto site = ItemList::join(m_store.root(), FakeFolder::item(L"site").get());
    ASSERT_TRUE(m_host.browser.BrowseObject(site.get(), SBSP_ABSOLUTE));
    ASSERT_TRUE(m_host.browser.SendSelectionToData(m_data));
    ASSERT_EQ(m_data.GetCount(), 2);
    const CNavData& first = *m_data.GetData(0);
    EXPECT_STREQ(first.GetTextInFolder(), L"b");
    EXPECT_STREQ(first.GetText(), L"b ");
    EXPECT_EQ(first.GetDataType(), NAV_DATA_EXTENSION);
    EXPECT_STREQ(first.GetUserName(), L"anna");
    EXPECT_STREQ(first.GetPassword(), L"secret");
    EXPECT_EQ(m_host.browseOwner.askedSite, L"site");
    EXPECT_THAT(first.GetID(), HoldsSameBytes(ItemList::join(site.get(), FakeFolder::item(L" b ").get()).get()));
    EXPECT_STREQ(m_data.GetData(1)->GetTextInFolder(), L"a");

    CString user;
    CString password;
    EXPECT_TRUE(m_host.browser.GetCurrentLogin(user, password));
    ASSERT_TRUE(browseStore());
    EXPECT_FALSE(m_host.browser.GetCurrentLogin(user, password)) << "the root of all sites is none";
    EXPECT_TRUE(user.IsEmpty());
}

}  // namespace
