#include "shell/ListWalk.h"
#include "support/ItemLists.h"
#include "support/ScopedTempFolder.h"
#include "view/ViewHost.h"

#include <gmock/gmock.h>

#include <knav/CNavDataArray.h>
#include <knav/CNavPathname.h>

namespace {

using namespace knav;
using namespace knav::test;
using testing::ElementsAre;

class Selection : public testing::Test {
protected:
    void SetUp() override {
        for (const wchar_t* name : {L"a.dwg", L"b b.dwg", L"c.dwg"}) {
            m_folder.addFile(name);
        }
        m_folder.addFolder(L"sub");
        m_host.browser.SetMultiSelectAllowed(1);
        ASSERT_TRUE(m_host.browse(m_folder.path()));
    }

    ScopedTempFolder m_folder;
    ViewHost m_host;
    CNavDataArray m_data;
};

TEST_F(Selection, ThreeFilesAndAFolder_GiveItemsInOrder) {
    const wchar_t* const names[] = {L"sub", L"a.dwg", L"b b.dwg", L"c.dwg"};
    m_host.select({L"sub", L"a.dwg", L"b b.dwg", L"c.dwg"});
    ASSERT_TRUE(m_host.browser.SendSelectionToData(m_data));
    ASSERT_EQ(m_data.GetCount(), 4);
    ITEMIDLIST* const folder = m_host.browser.GetCurrentObjectID();
    for (int i = 0; i < 4; ++i) {
        const CNavData& item = *m_data.GetData(i);
        EXPECT_EQ(CString(item.GetTextInFolder()), names[i]);
        EXPECT_EQ(CString(item.GetText()).CompareNoCase(m_folder.path(names[i])), 0);
        EXPECT_EQ(item.GetDataType(), NAV_DATA_FILE);
        EXPECT_EQ(item.GetPathname()->GetType(), i == 0 ? CZoUiPathname::Directory : CZoUiPathname::ExistingFile);
        EXPECT_FALSE(item.GetPathname()->isShortCut());
        EXPECT_THAT(ItemList::parentOf(item.GetID()).get(), HoldsSameBytes(folder));
    }
}

TEST_F(Selection, WithoutFocusOrView_GivesNoItems) {
    const auto expectNothing = [this] {
        m_data.AddData();
        EXPECT_FALSE(m_host.browser.SendSelectionToData(m_data));
        EXPECT_EQ(m_data.GetCount(), 0);
    };
    expectNothing();
    ListView_SetItemState(m_host.list(), m_host.rowOf(L"a.dwg"), LVIS_SELECTED, LVIS_SELECTED);
    ASSERT_EQ(ListView_GetSelectedCount(m_host.list()), 1u);
    expectNothing();
    m_host.browser.DestroyViewWindow(0);
    expectNothing();
    m_host.browser.SyncToData(m_data);
}

std::vector<std::wstring> selectedNames(const ViewHost& host) {
    std::vector<std::wstring> names;
    for (int row = -1; (row = ListView_GetNextItem(host.list(), row, LVNI_SELECTED)) >= 0;) {
        wchar_t text[MAX_PATH] = L"";
        ListView_GetItemText(host.list(), row, 0, text, MAX_PATH);
        names.emplace_back(text);
    }
    std::ranges::sort(names);
    return names;
}

TEST_F(Selection, SyncToData_SelectsExactlyTheItemsOfTheFolder) {
    m_host.select({L"a.dwg", L"c.dwg"});
    m_host.browser.SendSelectionToData(m_data);
    m_data.AddData();
    CNavData& relative = *m_data.GetData(1);
    relative.SetID(ItemList::copyOf(measureList(relative.GetID()).last).release());
    m_host.select({L"b b.dwg"});
    m_host.browser.SyncToData(m_data);
    EXPECT_THAT(selectedNames(m_host), ElementsAre(L"a.dwg", L"c.dwg"));

    m_data.GetData(1)->SetID(nullptr);
    m_folder.addFile(L"sub\\a.dwg");
    ASSERT_TRUE(m_host.browse(m_folder.path(L"sub")));
    m_host.browser.SyncToData(m_data);
    EXPECT_THAT(selectedNames(m_host), ElementsAre()) << "items of other folders are left out";

    m_host.select({L"a.dwg"});
    m_data.RemoveAllData();
    m_host.browser.SyncToData(m_data);
    EXPECT_THAT(selectedNames(m_host), ElementsAre());
}

}  // namespace
