// The wrappers that do more than send one message, on real controls.
#include <platform/Controls.h>

#include <gtest/gtest.h>

namespace {

constexpr RECT kPlace{0, 0, 200, 100};

class ControlsTest : public testing::Test {
protected:
    ControlsTest() { m_parent.CreateEx(0, nullptr, L"parent", WS_POPUP, kPlace, nullptr, 0); }
    CWnd m_parent;
};

TEST_F(ControlsTest, TextsOfAnyLengthComeBackWhole) {
    CListCtrl list;
    CEdit edit;
    ASSERT_TRUE(list.Create(LVS_REPORT, kPlace, &m_parent, 1));
    ASSERT_TRUE(edit.Create(ES_MULTILINE, kPlace, &m_parent, 2));
    list.InsertColumn(0, L"Name", LVCFMT_LEFT, 100);
    list.InsertColumn(1, L"Size");
    for (const int length : {0, 126, 127, 128, 255, 1000}) {
        const CString text(L'x', length);
        const int index = list.InsertItem(list.GetItemCount(), L"");
        ASSERT_TRUE(list.SetItemText(index, 1, text));
        EXPECT_EQ(list.GetItemText(index, 1), text) << length;
        edit.SetWindowText(text);
        CString shown(L"before");
        edit.GetWindowText(shown);
        EXPECT_EQ(shown, text) << length;
    }
    EXPECT_TRUE(list.GetItemText(99, 0).IsEmpty());
    CString text(L"before");
    m_parent.GetDlgItemText(99, text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(ControlsTest, ListsAnswerMissingItemsWithNothing) {
    CComboBox combo;
    CListBox list;
    combo.Create(CBS_DROPDOWN, kPlace, &m_parent, 1);
    list.Create(0, kPlace, &m_parent, 2);
    int object = 0;
    combo.SetItemDataPtr(combo.AddString(L"Plan"), &object);
    list.SetItemDataPtr(list.AddString(L"Plan"), &object);
    for (const int index : {0, 1}) {
        const bool isThere = index == 0;
        CString inCombo(L"before");
        CString inList(L"before");
        combo.GetLBText(index, inCombo);
        list.GetText(index, inList);
        EXPECT_EQ(inCombo, isThere ? L"Plan" : L"");
        EXPECT_EQ(inList, isThere ? L"Plan" : L"");
        EXPECT_EQ(combo.GetItemDataPtr(index), isThere ? &object : nullptr);
        EXPECT_EQ(list.GetItemDataPtr(index), isThere ? &object : nullptr);
        BOOL outside = isThere;
        EXPECT_EQ(list.ItemFromPoint({5, isThere ? 2 : 90}, outside), 0u);
        EXPECT_EQ(outside != FALSE, !isThere);
    }
}

}  // namespace
