// The wrappers that do more than send one message, on real controls.
#include <platform/Controls.h>

#include <gtest/gtest.h>

namespace {

constexpr RECT kPlace{0, 0, 200, 100};

TEST(Controls, TextsOfAnyLengthComeBackWhole) {
    CWnd parent;
    parent.CreateEx(0, nullptr, L"parent", WS_POPUP, kPlace, nullptr, 0);
    CListCtrl list;
    CEdit edit;
    ASSERT_TRUE(list.Create(LVS_REPORT, kPlace, &parent, 1));
    ASSERT_TRUE(edit.Create(ES_MULTILINE, kPlace, &parent, 2));
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
    parent.GetDlgItemText(99, text);
    EXPECT_TRUE(text.IsEmpty());
}

}  // namespace
