#include <zoui/CZoUiListBox.h>

#include <gtest/gtest.h>

#include "support/Printers.h"

namespace {

class TipList : public CZoUiListBox {
public:
    TipList() {
        Create(WS_POPUP | WS_VISIBLE | LBS_NOINTEGRALHEIGHT, RECT{0, 0, 100, 200}, nullptr, 0);
        AddString(L"first");
        AddString(L"second");
    }
    int m_tips = 0;
    int OnGetTipSupport() override { return m_tips; }
    int OnGetTipText(const POINT& point, CString& text) override {
        text = point.y < rowHeight() ? L"the first row" : L"";
        return 1;
    }
    int rowHeight() { return static_cast<int>(SendMessage(LB_GETITEMHEIGHT)); }
    void moveTo(int y) { SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, y)); }
};

// What the tip window of the list knows; an empty text when there is none.
TOOLINFOW toolOf(HWND list, wchar_t (&text)[80]) {
    const auto find = [](HWND window, LPARAM found) -> BOOL {
        wchar_t name[40];
        GetClassNameW(window, name, 40);
        *reinterpret_cast<HWND*>(found) = lstrcmpiW(name, TOOLTIPS_CLASSW) == 0 ? window : nullptr;
        return *reinterpret_cast<HWND*>(found) == nullptr;
    };
    HWND tip = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), find, reinterpret_cast<LPARAM>(&tip));
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = list;
    tool.lpszText = text;
    text[0] = 0;
    if (tip != nullptr) {
        SendMessageW(tip, TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    return tool;
}

TEST(ZoUiListBox, TipFollowsThePointerFromRowToRow) {
    TipList list;
    wchar_t text[80];
    list.moveTo(1);
    toolOf(list, text);
    EXPECT_STREQ(text, L"") << "no window is made for a list without tips";
    list.m_tips = 1;
    list.moveTo(1);
    const RECT row = toolOf(list, text).rect;
    EXPECT_STREQ(text, L"the first row ") << "the blank is there to be cut off";
    EXPECT_EQ(row.top, 0);
    EXPECT_EQ(row.bottom, list.rowHeight());
    list.moveTo(list.rowHeight() + 1);
    const RECT none = toolOf(list, text).rect;
    EXPECT_STREQ(text, L"") << "a row without a tip";
    EXPECT_TRUE(IsRectEmpty(&none));
}

}  // namespace
