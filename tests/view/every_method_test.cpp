// Whatever method of a folder, of its view or of the view's data object misbehaves, the browser goes on.
#include "support/ScopedTempFolder.h"
#include "view/ViewHost.h"
#include "view/ViewStore.h"

#include <gmock/gmock.h>

#include <knav/CNavDataArray.h>
#include <knav/CNavFilter.h>
#include <knav/NavViewMode.h>

namespace {

using namespace knav;
using namespace knav::test;
using testing::ElementsAre;

class EveryMethod : public testing::TestWithParam<Conduct> {
protected:
    EveryMethod() {
        m_temp.addFile(L"a.dwg");
        m_filter.Add(L"*.dwg");
        m_host.browser.SetCurrentFilter(&m_filter);
        m_store.script.standardWindow = true;
        m_store.script.selection = {L"item"};
    }

    bool browseStore() { return m_host.browser.BrowseObject(m_store.root(), SBSP_ABSOLUTE) != 0; }

    /// Calls `use` for each method that it comes to, with what is to misbehave in it.
    template <class Use>
    void forEachMethod(Use&& use) {
        for (const FolderCall call : reachedMethods(m_store, use)) {
            SCOPED_TRACE(static_cast<int>(call));
            m_store.folder->setOnly({});
            use({{call, GetParam()}});
        }
    }

    /// All that a dialog asks the browser for while a view is shown.
    void useView() {
        CNavCommDlgBrowser& browser = m_host.browser;
        CNavDataArray data;
        browser.SendSelectionToData(data);
        data.AddData()->SetID(ItemList::copyOf(m_store.root()).release());
        browser.SyncToData(data);
        browser.RefreshView();
        browser.GetICommDlgBrowser()->IncludeObject(nullptr, FakeFolder::item(L"item").get());
        browser.GetICommDlgBrowser()->OnStateChange(nullptr, CDBOSC_SELCHANGE);
        IShellView* view = nullptr;
        browser.GetIShellBrowser()->QueryActiveShellView(&view);
        ComPtr<IShellView>::adopt(view).reset();
        LVITEMW arrived{};
        ListView_InsertItem(m_host.list(), &arrived);
        browser.SetViewMode(browser.GetViewMode() == NavViewList ? NavViewDetails : NavViewList);
        browser.BrowseObject(FakeFolder::item(L"item").get(), SBSP_RELATIVE);
    }

    void expectOrdinaryFolder() {
        ASSERT_TRUE(m_host.browse(m_temp.path()));
        EXPECT_THAT(m_host.rows(), ElementsAre(L"a.dwg"));
        EXPECT_EQ(m_host.children(), 2) << "placeholder and view";
    }

    ScopedTempFolder m_temp;
    ViewStore m_store{SFGAO_FILESYSTEM};
    CNavFilter m_filter;
    ViewHost m_host;
};

TEST_P(EveryMethod, OfTheViewShown_TheNextFolderIsShownAllTheSame) {
    forEachMethod([&](const Misconduct& bad) {
        const int before = m_store.folder->liveObjects();
        ASSERT_TRUE(browseStore());
        m_store.folder->setOnly(bad);
        useView();
        expectOrdinaryFolder();
        const bool isRelease = bad.contains(FolderCall::ViewRelease) || bad.contains(FolderCall::DataRelease) ||
                               bad.contains(FolderCall::Release);
        if (!isRelease) {
            EXPECT_EQ(m_store.folder->liveObjects(), before) << "the view is gone";
        }
    });
}

TEST_P(EveryMethod, OfAViewToBeShown_ThePreviousOneStaysOrTheNewOneIsThere) {
    forEachMethod([&](const Misconduct& bad) {
        expectOrdinaryFolder();
        IShellView* const previous = m_host.browser.GetCurrentShellView();
        m_store.folder->setOnly(bad);
        if (browseStore()) {
            EXPECT_NE(m_host.browser.GetCurrentShellView(), previous);
            EXPECT_TRUE(m_host.list() != nullptr && IsChild(m_host.owner, m_host.list()));
        } else {
            EXPECT_EQ(m_host.browser.GetCurrentShellView(), previous);
            EXPECT_EQ(m_host.shownPath().CompareNoCase(m_temp.path()), 0);
            EXPECT_THAT(m_host.rows(), ElementsAre(L"a.dwg"));
        }
        EXPECT_FALSE(m_host.browseOwner.browsing);
    });
}

INSTANTIATE_TEST_SUITE_P(Conducts, EveryMethod, testing::Values(Conduct::Fails, Conduct::Faults, Conduct::Throws));

}  // namespace
