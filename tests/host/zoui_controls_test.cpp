#include <platform/Resources.h>
#include <ry/RyUtResource.h>
#include <zoui/CZoUiListBox.h>
#include <zoui/CZoUiRm.h>

#include <gtest/gtest.h>

#include "support/ObjectCounts.h"
#include "support/Printers.h"

namespace {

class TipList : public CZoUiListBox {
public:
    TipList() {
        Create(WS_POPUP | WS_VISIBLE | LBS_NOINTEGRALHEIGHT, RECT{0, 0, 100, 200}, nullptr, 0);
        AddString(L"first");
        AddString(L"second");
    }
    int OnGetTipSupport() override { return 1; }
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
    list.moveTo(list.rowHeight() + 1);
    toolOf(list, text);
    EXPECT_STREQ(text, L"") << "no window is made for a row without a tip";
    list.moveTo(1);
    const RECT row = toolOf(list, text).rect;
    EXPECT_STREQ(text, L"the first row ") << "the blank is there to be cut off";
    EXPECT_EQ(row.top, 0);
    EXPECT_EQ(row.bottom, list.rowHeight());
    list.moveTo(list.rowHeight() + 1);
    const RECT none = toolOf(list, text).rect;
    EXPECT_STREQ(text, L"");
    EXPECT_TRUE(IsRectEmpty(&none));
    list.moveTo(150);
    toolOf(list, text);
    EXPECT_STREQ(text, L"") << "below the last row";
}

TEST(ZoUiListBox, ListWithoutTipSupportMakesNoTipWindow) {
    class Plain : public TipList {
        int OnGetTipSupport() override { return 0; }
    };
    Plain list;
    list.moveTo(1);
    wchar_t text[80];
    toolOf(list, text);
    EXPECT_STREQ(text, L"");
}

SIZE sizeOf(HICON icon) {
    ICONINFO parts{};
    GetIconInfo(icon, &parts);
    const zoui::UniqueBitmap mask(parts.hbmMask);
    const zoui::UniqueBitmap colour(parts.hbmColor);
    BITMAP bitmap{};
    GetObjectW(colour.get(), sizeof(bitmap), &bitmap);
    return {bitmap.bmWidth, bitmap.bmHeight};
}

TEST(ResourcePictures, IconsAreFoundByNameInTheResourceModules) {
    const HINSTANCE module = RyUtResource::loadDll(L"KnavRes.dll");
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(CZoUiRm::Icon(L"IDB_KNAV_NEW_FTP_16"), nullptr) << "not in this program";
    {
        const CDynLinkLibrary link(module);
        EXPECT_NE(CZoUiRm::Icon(L"idb_knav_new_ftp_16"), nullptr);
        EXPECT_EQ(sizeOf(CZoUiRm::Icon(L"IDB_KNAV_NEW_FTP_16", 24).get()).cx, 24);
        EXPECT_EQ(CZoUiRm::Icon(L"IDB_NONE"), nullptr);
    }
    RyUtResource::freeDll(module);
}

TEST(ResourcePictures, BitmapServesAsAnIconWithItsCornerColourTransparent) {
    // The standard toolbar pictures: a row of 15 in 16 colours on a grey ground.
    const HINSTANCE module = LoadLibraryExW(L"comctl32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    constexpr UINT kStandardPictures = 120;
    const CDynLinkLibrary link(module);
    const zoui::UniqueBitmap bitmap = CZoUiRm::Bitmap(kStandardPictures);
    ASSERT_NE(bitmap, nullptr);
    BITMAP description{};
    GetObjectW(bitmap.get(), sizeof(description), &description);
    const zoui::UniqueIcon icon = CZoUiRm::Icon(kStandardPictures);
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(sizeOf(icon.get()).cx, description.bmWidth);

    const zoui::UniqueMemoryDC memory(CreateCompatibleDC(nullptr));
    const zoui::WindowDC screen(nullptr);
    const zoui::UniqueBitmap canvas(CreateCompatibleBitmap(screen, description.bmWidth, description.bmHeight));
    const zoui::SelectedObject selected(memory.get(), canvas.get());
    const RECT all{0, 0, description.bmWidth, description.bmHeight};
    const zoui::UniqueBrush red(CreateSolidBrush(RGB(255, 0, 0)));
    FillRect(memory.get(), &all, red.get());
    DrawIconEx(memory.get(), 0, 0, icon.get(), description.bmWidth, description.bmHeight, 0, nullptr, DI_NORMAL);
    EXPECT_EQ(GetPixel(memory.get(), 0, 0), RGB(255, 0, 0)) << "the ground shows what is below";
    int drawn = 0;
    for (int x = 0; x < description.bmWidth; ++x) {
        drawn += GetPixel(memory.get(), x, description.bmHeight / 2) != RGB(255, 0, 0);
    }
    EXPECT_GT(drawn, description.bmWidth / 4) << "and the pictures cover it";
    FreeLibrary(module);
}

TEST(ResourcePictures, NothingIsLeftBehind) {
    const HINSTANCE module = LoadLibraryExW(L"comctl32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    {
        const CDynLinkLibrary link(module);
        EXPECT_EQ(knav::test::growthOver(20, [] { CZoUiRm::Icon(120, 32); }).gdi, 0);
    }
    FreeLibrary(module);
}

}  // namespace
