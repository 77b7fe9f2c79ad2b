// The wrappers that do more than send one message, on real controls.
#include <platform/CWaitCursor.h>
#include <platform/Controls.h>
#include <platform/GdiOwners.h>

#include <gtest/gtest.h>

namespace {

constexpr RECT kPlace{0, 0, 200, 100};

class ControlsTest : public testing::Test {
protected:
    ControlsTest() { m_parent.CreateEx(0, nullptr, L"parent", WS_POPUP, kPlace, nullptr, 0); }
    CWnd m_parent;
};

TEST_F(ControlsTest, ListViewTextsOfAnyLengthComeBackWhole) {
    CListCtrl list;
    ASSERT_TRUE(list.Create(LVS_REPORT, kPlace, &m_parent, 1));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
    list.InsertColumn(1, L"Size");
    for (const int length : {0, 126, 127, 128, 255, 1000}) {
        const CString text(L'x', length);
        const int index = list.InsertItem(list.GetItemCount(), L"");
        ASSERT_TRUE(list.SetItemText(index, 1, text));
        EXPECT_EQ(list.GetItemText(index, 1), text) << length;
    }
    EXPECT_TRUE(list.GetItemText(99, 0).IsEmpty());
    EXPECT_EQ(list.GetColumnWidth(0), 100);
}

TEST_F(ControlsTest, ListViewStateAndDataBelongToTheirItem) {
    CListCtrl list;
    list.Create(LVS_LIST, kPlace, &m_parent, 1);
    for (const wchar_t* const text : {L"a", L"b", L"c"}) {
        list.InsertItem(list.GetItemCount(), text);
    }
    EXPECT_TRUE(list.SetItemData(1, 77));
    EXPECT_EQ(list.GetItemData(1), 77);
    EXPECT_EQ(list.GetItemData(0), 0);
    EXPECT_EQ(list.GetItemData(9), 0);
    list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(list.GetSelectedCount(), 3u);
    list.SetItemState(1, 0, LVIS_SELECTED);
    EXPECT_EQ(list.GetNextItem(0, LVNI_SELECTED), 2);
}

TEST_F(ControlsTest, ListsAnswerMissingItemsWithNothing) {
    CComboBox combo;
    CListBox list;
    combo.Create(CBS_DROPDOWN, kPlace, &m_parent, 1);
    list.Create(0, kPlace, &m_parent, 2);
    int object = 0;
    CString text;
    combo.SetItemDataPtr(combo.AddString(L"Plan"), &object);
    list.SetItemDataPtr(list.AddString(L"Plan"), &object);

    combo.GetLBText(0, text);
    EXPECT_STREQ(text, L"Plan");
    EXPECT_EQ(combo.GetItemDataPtr(0), &object);
    combo.GetLBText(1, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(combo.GetItemDataPtr(1), nullptr);

    list.GetText(0, text);
    EXPECT_STREQ(text, L"Plan");
    EXPECT_EQ(list.GetItemDataPtr(0), &object);
    list.GetText(1, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(list.GetItemDataPtr(1), nullptr);
    BOOL outside = FALSE;
    EXPECT_EQ(list.ItemFromPoint({5, 90}, outside), 0u);
    EXPECT_TRUE(outside);
    list.ItemFromPoint({5, 2}, outside);
    EXPECT_FALSE(outside);
}

TEST_F(ControlsTest, TipBelongsToItsTool) {
    CButton first;
    CButton second;
    first.Create(L"1", 0, kPlace, &m_parent, 1);
    second.Create(L"2", 0, kPlace, &m_parent, 2);
    CToolTipCtrl tips;
    ASSERT_TRUE(tips.Create(&m_parent));
    EXPECT_TRUE(tips.AddTool(&first, L"Back"));
    EXPECT_TRUE(tips.AddTool(&second, L"Up"));
    tips.UpdateTipText(L"Back to Plans", &first);
    EXPECT_STREQ(tips.GetText(&first), L"Back to Plans");
    EXPECT_STREQ(tips.GetText(&second), L"Up");
    tips.DelTool(&second);
    EXPECT_TRUE(tips.GetText(&second).IsEmpty());
}

TEST_F(ControlsTest, WindowTextAndStyleChange) {
    CEdit edit;
    edit.Create(ES_MULTILINE, kPlace, &m_parent, 1);
    const CString longText(L'x', 3000);
    edit.SetWindowText(longText);
    CString text(L"before");
    edit.GetWindowText(text);
    EXPECT_EQ(text, longText);
    m_parent.GetDlgItemText(99, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(edit.ModifyStyle(0, WS_DISABLED));
    EXPECT_FALSE(edit.ModifyStyle(0, WS_DISABLED));
    EXPECT_FALSE(edit.IsWindowEnabled());
    EXPECT_STREQ(edit.GetClassName(), L"Edit");
}

TEST(GdiOwners, PutBackWhatWasThere) {
    const zoui::UniqueMemoryDC dc(CreateCompatibleDC(nullptr));
    const zoui::UniqueFont font(CreateFontW(20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"Tahoma"));
    const HGDIOBJ before = GetCurrentObject(dc.get(), OBJ_FONT);
    {
        const zoui::SelectedObject selected(dc.get(), font.get());
        EXPECT_EQ(GetCurrentObject(dc.get(), OBJ_FONT), font.get());
        const zoui::SelectedObject nothing(dc.get(), nullptr);
        const zoui::SavedDC saved(dc.get());
        SetBkMode(dc.get(), TRANSPARENT);
    }
    EXPECT_EQ(GetCurrentObject(dc.get(), OBJ_FONT), before);
    EXPECT_EQ(GetBkMode(dc.get()), OPAQUE);
}

TEST(WaitCursor, GivesThePreviousCursorBack) {
    const HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
    const HCURSOR wait = LoadCursorW(nullptr, IDC_WAIT);
    SetCursor(arrow);
    {
        CWaitCursor outer;
        { const CWaitCursor inner; }
        EXPECT_EQ(GetCursor(), wait);
        SetCursor(arrow);
        outer.Restore();
        EXPECT_EQ(GetCursor(), wait);
    }
    EXPECT_EQ(GetCursor(), arrow);
}

}  // namespace
