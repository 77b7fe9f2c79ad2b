#include "shell/ComPtr.h"
#include "shell/ItemList.h"
#include "shell/ListWalk.h"
#include "support/ObjectCounts.h"
#include "support/RealNamespace.h"
#include "support/ScopedTempFolder.h"
#include "view/ViewHost.h"

#include <gmock/gmock.h>

#include <knav/CNavFilter.h>
#include <knav/NavFolders.h>
#include <knav/NavNames.h>

namespace {

using namespace knav;
using namespace knav::test;
using testing::ElementsAre;

class Browse : public testing::Test {
protected:
    void SetUp() override {
        m_folder.addFile(L"a.dwg");
        m_folder.addFile(L"b.txt");
        m_folder.addFile(L"c.dwg");
        m_folder.addFile(L"sub\\inner.dwg");
    }

    ScopedTempFolder m_folder;
    ViewHost m_host;
};

TEST_F(Browse, Absolute_ShowsTheFolderAtThePlaceholderAndTakesItsWindowsOver) {
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    EXPECT_THAT(m_host.rows(), ElementsAre(L"a.dwg", L"b.txt", L"c.dwg", L"sub"));
    EXPECT_EQ(m_host.shownPath().CompareNoCase(m_folder.path()), 0);
    const RECT place = m_host.viewPlace();
    EXPECT_TRUE(EqualRect(&place, &m_host.browser.GetViewRect()));
    EXPECT_EQ(place.left, 10);
    EXPECT_EQ(place.right, 410);
    EXPECT_TRUE(m_host.listCtrl.GetStyle() & LVS_SHOWSELALWAYS);
    EXPECT_EQ(GetWindowContextHelpId(m_host.list()), 0x808332D2u);
    EXPECT_EQ(m_host.listCtrl.GetZoUiParent(), &m_host.owner);
    EXPECT_THAT(m_host.browseOwner.log, ElementsAre("enter", "restore", "browsed", "leave"));
}

TEST_F(Browse, RelativeAndParent_LeadFromTheFolderShown) {
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    const auto inner = parsed(m_folder.path(L"sub"));
    const auto relative = ItemList::copyOf(measureList(inner.get()).last);
    ASSERT_TRUE(m_host.browser.BrowseObject(relative.get(), SBSP_RELATIVE));
    EXPECT_THAT(m_host.rows(), ElementsAre(L"inner.dwg"));
    EXPECT_TRUE(m_host.browser.BrowseCurrentObject());
    EXPECT_THAT(m_host.rows(), ElementsAre(L"inner.dwg"));
    ASSERT_TRUE(m_host.browser.BrowseObject(inner.get(), SBSP_PARENT));
    EXPECT_EQ(m_host.shownPath().CompareNoCase(m_folder.path()), 0);
    EXPECT_TRUE(m_host.browser.BrowseCurrentObject());
    EXPECT_EQ(m_host.shownPath().CompareNoCase(m_folder.path()), 0);
    ASSERT_TRUE(m_host.browser.GetIShellBrowser()->BrowseObject(nullptr, SBSP_PARENT) == S_OK);
    EXPECT_EQ(m_folder.path().Left(m_host.shownPath().GetLength()).CompareNoCase(m_host.shownPath()), 0);
    EXPECT_LT(m_host.shownPath().GetLength(), m_folder.path().GetLength());
}

TEST_F(Browse, FolderThatCannotBeShown_LeavesEverythingAsItWas) {
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    const HWND view = m_host.viewHandle();
    m_host.browseOwner.log.clear();
    EXPECT_FALSE(m_host.browser.BrowseObject(nullptr, SBSP_ABSOLUTE));
    EXPECT_FALSE(m_host.browser.BrowseObject(parsed(m_folder.path()).get(), SBSP_RELATIVE | SBSP_PARENT));
    EXPECT_EQ(m_host.viewHandle(), view);
    EXPECT_EQ(m_host.shownPath().CompareNoCase(m_folder.path()), 0);
    EXPECT_THAT(m_host.browseOwner.log, ElementsAre("enter", "leave", "enter", "leave"));
}

TEST_F(Browse, WithoutOwnerOrPlaceholder_Fails) {
    const auto list = parsed(m_folder.path());
    CNavCommDlgBrowser bare;
    EXPECT_FALSE(bare.BrowseObject(list.get(), SBSP_ABSOLUTE));
    EXPECT_FALSE(bare.BrowseCurrentObject());
    m_host.browser.SetBuddyWindow(nullptr);
    EXPECT_FALSE(m_host.browser.BrowseObject(list.get(), SBSP_ABSOLUTE));
}

TEST_F(Browse, FromInsideABrowse_ReportsSuccessAndDoesNothing) {
    int inner = -1;
    m_host.browseOwner.onBrowsed = [&] { inner = m_host.browse(m_folder.path(L"sub")); };
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    EXPECT_EQ(inner, 1);
    EXPECT_THAT(m_host.rows(), ElementsAre(L"a.dwg", L"b.txt", L"c.dwg", L"sub"));
    EXPECT_THAT(m_host.browseOwner.log, ElementsAre("enter", "restore", "browsed", "refuse", "leave"));
}

// Asks for another folder while a view is being filled, with no dialog to guard it.
class RestlessBrowser : public CNavCommDlgBrowser {
public:
    int IsAllowed(ITEMIDLIST*) override {
        ++asked;
        answer = BrowseObject(ItemList::adopt(NavGetDesktopFolderItem(nullptr)).get(), SBSP_ABSOLUTE);
        return 1;
    }
    int asked = 0;
    int answer = -1;
};

TEST_F(Browse, FromInsideAViewNotification_IsGuardedWithoutADialogToo) {
    RestlessBrowser browser;
    m_host.lendWindowsTo(browser);
    ASSERT_TRUE(browser.BrowseObject(parsed(m_folder.path()).get(), SBSP_ABSOLUTE));
    EXPECT_EQ(browser.asked, 4);
    EXPECT_EQ(browser.answer, 1);
    EXPECT_FALSE(NavIsDesktop(browser.GetCurrentObjectID()));
}

TEST_F(Browse, SecondBrowse_SavesTheOldViewAndReplacesIt) {
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    const HWND old = m_host.viewHandle();
    m_host.browseOwner.log.clear();
    addShortcut(m_folder, L"go.lnk", m_folder.path(L"sub"));
    ASSERT_TRUE(m_host.browse(m_folder.path(L"go.lnk")));
    EXPECT_THAT(m_host.rows(), ElementsAre(L"inner.dwg")) << "a shortcut shows its target";
    EXPECT_FALSE(IsWindow(old));
    EXPECT_NE(m_host.viewHandle(), nullptr);
    EXPECT_THAT(m_host.browseOwner.log, ElementsAre("enter", "save", "restore", "browsed", "leave"));
}

TEST_F(Browse, ViewMode_ChangesTheListAndMakesANewView) {
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    EXPECT_EQ(m_host.browser.GetViewMode(), 3u);
    for (const auto& [mode, listView] : {std::pair{4u, 1}, {1u, 0}, {2u, 2}, {3u, 3}}) {
        const HWND before = m_host.viewHandle();
        m_host.browser.SetViewMode(mode);
        EXPECT_FALSE(IsWindow(before)) << mode;
        EXPECT_EQ(ListView_GetView(m_host.list()), static_cast<DWORD>(listView));
        EXPECT_EQ(m_host.browser.GetViewMode(), mode);
        EXPECT_EQ(m_host.browser.GetCurrentFolderSettings().ViewMode, mode);
    }
    const HWND before = m_host.viewHandle();
    m_host.browser.SetViewMode(3);
    EXPECT_EQ(m_host.viewHandle(), before);
}

TEST_F(Browse, Thumbnails_StayTheModeWhereTheListCannotShowThem_UntilItsOwnMenuChangesIt) {
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    m_host.browser.SetViewMode(5);
    EXPECT_EQ(m_host.browser.GetViewMode(), 5u);
    ASSERT_TRUE(m_host.browse(m_folder.path(L"sub")));
    EXPECT_EQ(m_host.browser.GetViewMode(), 5u);
    constexpr WPARAM kDetailsCommand = 0x702C;
    SendMessageW(m_host.viewHandle(), WM_COMMAND, kDetailsCommand, 0);
    EXPECT_EQ(m_host.browser.GetViewMode(), 4u);
}

TEST_F(Browse, Placeholder_GivesTheViewItsPlaceAndTurn) {
    CWnd before;
    CWnd after;
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    after.Create(WC_BUTTONW, L"after", style, {0, 400, 50, 420}, &m_host.owner, 2);
    before.Create(WC_BUTTONW, L"before", style, {0, 0, 50, 20}, &m_host.owner, 1);
    before.SetWindowPos(HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    m_host.owner.ShowWindow(SW_SHOW);
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    EXPECT_EQ(GetNextDlgTabItem(m_host.owner, before, FALSE), m_host.viewHandle());
    EXPECT_EQ(GetNextDlgTabItem(m_host.owner, m_host.list(), FALSE), after.m_hWnd);
    EXPECT_EQ(GetNextDlgTabItem(m_host.owner, m_host.list(), TRUE), before.m_hWnd);
    m_host.buddy.MoveWindow(20, 30, 300, 200);
    const RECT place = m_host.viewPlace();
    const RECT expected{20, 30, 320, 230};
    EXPECT_TRUE(EqualRect(&place, &expected));

    ::SetFocus(m_host.list());
    MSG tab{m_host.list(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(m_host.owner, &tab));
    EXPECT_EQ(m_host.owner.nextControl, after.m_hWnd);
    MSG other{m_host.list(), WM_KEYDOWN, VK_F5, 0, 0, {}};
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(m_host.owner, &other));
    ASSERT_TRUE(m_host.browse(m_folder.path(L"sub")));
    EXPECT_EQ(GetFocus(), m_host.list()) << "the focus goes on to the next view";
}

TEST_F(Browse, ViewCallsFromDefaultCommand_OldViewOutlivesTheCall) {
    class Browser : public CNavCommDlgBrowser {
    public:
        int OnDefaultCommand() override {
            const HWND old = view->viewHandle();
            browsed = BrowseObject(target.get(), SBSP_ABSOLUTE) != 0;
            oldAlive = IsWindow(old) && !IsWindowVisible(old) && view->viewHandle() != old;
            return 1;
        }
        ViewHost* view = nullptr;
        ItemList target;
        bool browsed = false;
        bool oldAlive = false;
    } browser;
    browser.view = &m_host;
    browser.target = parsed(m_folder.path(L"sub"));
    m_host.lendWindowsTo(browser);
    ASSERT_TRUE(browser.BrowseObject(parsed(m_folder.path()).get(), SBSP_ABSOLUTE));
    const HWND old = m_host.viewHandle();
    m_host.select({L"sub"});
    SendMessageW(m_host.list(), WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_TRUE(browser.browsed);
    EXPECT_TRUE(browser.oldAlive);
    EXPECT_TRUE(pumpUntil([old] { return !IsWindow(old); }));
    EXPECT_THAT(m_host.rows(), ElementsAre(L"inner.dwg"));
}

TEST_F(Browse, FilteredItemThatArrives_IsTakenOutAgain_AllowedOneStays) {
    CNavFilter filter;
    filter.Add(L"*.dwg");
    m_host.browser.SetCurrentFilter(&filter);
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    ASSERT_THAT(m_host.rows(), ElementsAre(L"a.dwg", L"c.dwg", L"sub"));
    for (const wchar_t* name : {L"new.txt", L"new.dwg"}) {
        SHChangeNotify(SHCNE_CREATE, SHCNF_PATHW | SHCNF_FLUSH, m_folder.addFile(name).GetString(), nullptr);
    }
    EXPECT_TRUE(pumpUntil([this] { return m_host.rowOf(L"new.dwg") >= 0 && m_host.rowOf(L"new.txt") < 0; }));
    EXPECT_THAT(m_host.rows(), ElementsAre(L"a.dwg", L"c.dwg", L"new.dwg", L"sub"));
}

TEST_F(Browse, Refresh_ReadsTheFolderAgainAndKeepsTheWindows) {
    CNavFilter filter;
    filter.Add(L"*.dwg");
    m_host.browser.SetCurrentFilter(&filter);
    EXPECT_FALSE(m_host.browser.RefreshView());
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    const HWND view = m_host.viewHandle();
    const HWND list = m_host.list();
    m_folder.addFile(L"new.dwg");
    m_folder.addFile(L"new.txt");
    EXPECT_TRUE(m_host.browser.RefreshView());
    EXPECT_THAT(m_host.rows(), ElementsAre(L"a.dwg", L"c.dwg", L"new.dwg", L"sub"));
    EXPECT_EQ(m_host.viewHandle(), view);
    EXPECT_EQ(m_host.list(), list);
    EXPECT_EQ(m_host.buddy.GetBuddy(), &m_host.viewWindow);
}

TEST_F(Browse, DestroyedView_LetsItsListControlGoAndComesBackWithTheFolder) {
    void* const memory = VirtualAlloc(nullptr, sizeof(CNavListCtrl), MEM_COMMIT, PAGE_READWRITE);
    auto* const list = new (memory) CNavListCtrl;
    m_host.browser.SetListCtrl(list);
    ASSERT_TRUE(m_host.browse(m_folder.path()));
    EXPECT_NE(list->m_hWnd, nullptr);
    m_host.browseOwner.log.clear();
    m_host.browser.DestroyViewWindow(1);
    list->~CNavListCtrl();
    VirtualFree(memory, 0, MEM_RELEASE);
    m_host.browser.DestroyViewWindow(1);
    EXPECT_THAT(m_host.browseOwner.log, ElementsAre("save"));
    EXPECT_EQ(m_host.viewHandle(), nullptr);
    m_host.browser.SetListCtrl(&m_host.listCtrl);
    ASSERT_TRUE(m_host.browser.BrowseCurrentObject());
    EXPECT_EQ(m_host.rows().size(), 4u);
}

TEST_F(Browse, FiftyBrowses_LeakNothing) {
    const ObjectCounts growth = growthOver(25, [this] {
        m_host.browse(m_folder.path(L"sub"));
        m_host.browse(m_folder.path());
    });
    EXPECT_EQ(growth, ObjectCounts());
}

}  // namespace
