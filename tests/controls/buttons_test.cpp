#include <gmock/gmock.h>

#include <knav/CNavComboButton.h>
#include <knav/CNavToolsButton.h>

#include "ButtonHost.h"
#include "controls/Picture.h"
#include "resources/ids.h"
#include "support/ObjectCounts.h"

namespace knav::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr LPARAM kOnText = MAKELPARAM(20, 10);
constexpr LPARAM kOnArrow = MAKELPARAM(95, 10);

void clickAt(HWND button, LPARAM where) {
    SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, where);
    SendMessageW(button, WM_LBUTTONUP, 0, where);
}

// --- the push button with a menu -------------------------------------------------------------------------------

class ComboButton : public testing::Test {
protected:
    ComboButton() {
        m_button.SubclassWindow(m_host.addButton(BS_DEFPUSHBUTTON));
        m_button.SetMenuSource(&m_host);
    }

    ButtonHost m_host;
    CNavComboButton m_button;
};

TEST_F(ComboButton, clickOnText_isAnOrdinaryClick) {
    clickAt(m_button, kOnText);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(Pair(kButtonId, BN_CLICKED)));
    EXPECT_THAT(m_host.asked, IsEmpty());
    EXPECT_EQ(CNavComboButton::NoPart, m_button.GetPressedPart());
}

TEST_F(ComboButton, clickOnArrow_dropsTheMenuInsteadOfClicking) {
    WORD partWhileOpen = 0;
    WORD openWhileOpen = 0;
    m_host.whileOpen = [&] {
        partWhileOpen = m_button.GetPressedPart();
        openWhileOpen = m_button.GetMenuOpen();
    };
    clickAt(m_button, kOnArrow);
    EXPECT_THAT(m_host.takeCommands(), IsEmpty());
    EXPECT_THAT(m_host.asked, ElementsAre(kButtonId));
    EXPECT_EQ(CNavComboButton::MenuPart, partWhileOpen);
    EXPECT_EQ(1, openWhileOpen);
    EXPECT_EQ(0, m_button.GetMenuOpen());
    EXPECT_EQ(CNavComboButton::NoPart, m_button.GetPressedPart());
}

TEST_F(ComboButton, withoutMenuPart_isAPushButtonAllOver) {
    m_button.SetMenuExists(0);
    clickAt(m_button, kOnArrow);
    SendMessageW(m_button, WM_SYSKEYDOWN, VK_DOWN, 0);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(Pair(kButtonId, BN_CLICKED)));
    EXPECT_THAT(m_host.asked, IsEmpty());
}

TEST_F(ComboButton, altDownThenEnter_choosesTheFirstEntry) {
    m_host.close = ButtonHost::Close::Choose;
    SendMessageW(m_button, WM_SYSKEYDOWN, VK_DOWN, 0);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(Pair(static_cast<int>(kFirstCommand), 0)));
}

TEST_F(ComboButton, clearState_closesAnOpenMenu) {
    m_host.whileOpen = [&] { m_button.ClearState(); };
    m_host.close = ButtonHost::Close::Choose;
    m_button.DropMenu(1);
    EXPECT_THAT(m_host.takeCommands(), IsEmpty()) << "the menu was gone before the key came";
    EXPECT_EQ(0, m_button.GetMenuOpen());
}

TEST_F(ComboButton, disabledOrWithoutMenu_dropsNothing) {
    m_host.hasMenu = false;
    EXPECT_EQ(0, m_button.DropMenu(0));
    m_button.EnableWindow(FALSE);
    EXPECT_EQ(0, m_button.DropMenu(0));
    EXPECT_THAT(m_host.asked, ElementsAre(kButtonId)) << "only while it was enabled";
}

TEST_F(ComboButton, dialogManager_seesARealDefaultButton) {
    EXPECT_TRUE(SendMessageW(m_button, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON);
    SendMessageW(m_button, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    EXPECT_TRUE(SendMessageW(m_button, WM_GETDLGCODE, 0, 0) & DLGC_UNDEFPUSHBUTTON);
}

TEST_F(ComboButton, stateChanges_leaveItAsVisibleAsItWas) {
    m_button.ShowWindow(SW_HIDE);
    m_button.EnableWindow(FALSE);
    m_button.SetWindowText(L"Save");
    EXPECT_FALSE(m_button.IsWindowVisible());
    m_button.ShowWindow(SW_SHOW);
    SendMessageW(m_button, BM_SETSTATE, TRUE, 0);
    EXPECT_TRUE(m_button.IsWindowVisible());
}

TEST_F(ComboButton, eachState_looksDifferent) {
    const auto normal = paintedBy(m_button);
    SendMessageW(m_button, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    EXPECT_NE(normal, paintedBy(m_button)) << "not the default button";
    SendMessageW(m_button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    EXPECT_EQ(normal, paintedBy(m_button)) << "and back";
    m_button.SetMenuExists(0);
    EXPECT_NE(normal, paintedBy(m_button)) << "no arrow";
    m_button.SetMenuExists(1);
    SendMessageW(m_button, BM_SETSTATE, TRUE, 0);
    EXPECT_NE(normal, paintedBy(m_button)) << "pressed";
    SendMessageW(m_button, BM_SETSTATE, FALSE, 0);
    m_button.EnableWindow(FALSE);
    EXPECT_NE(normal, paintedBy(m_button)) << "disabled";
}

// --- toolbar buttons -------------------------------------------------------------------------------------------

class ToolButton : public testing::Test {
protected:
    ToolButton() { m_button.SubclassWindow(m_host.addButton(BS_PUSHBUTTON, L"&Views", {10, 10, 50, 34})); }

    ResourcesInUse m_resources;
    ButtonHost m_host;
    CNavToolsButton m_button;
};

TEST_F(ToolButton, notAMenuButton_isClickedByMouseSpaceAndEnter) {
    clickAt(m_button, kOnText);
    clickAt(m_button, kOnText);
    SendMessageW(m_button, WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(m_button, WM_KEYDOWN, VK_RETURN, static_cast<LPARAM>(KF_REPEAT) << 16);
    EXPECT_EQ(3u, m_host.takeCommands().size()) << "an Enter that is held down clicks once";
}

TEST_F(ToolButton, doubleClick_countsAsTwo) {
    clickAt(m_button, kOnText);
    SendMessageW(m_button, WM_LBUTTONDBLCLK, MK_LBUTTON, kOnText);
    SendMessageW(m_button, WM_LBUTTONUP, 0, kOnText);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(Pair(kButtonId, BN_CLICKED), Pair(kButtonId, BN_CLICKED)));
}

TEST_F(ToolButton, menuButton_dropsAtOnceAndByEachKey) {
    m_button.SetToolButton(1);
    m_button.SetMenuSource(&m_host);
    SendMessageW(m_button, WM_LBUTTONDOWN, MK_LBUTTON, kOnText);
    for (const WPARAM key : {VK_SPACE, VK_RETURN, VK_DOWN, VK_F4})
        SendMessageW(m_button, WM_KEYDOWN, key, 0);
    SendMessageW(m_button, BM_CLICK, 0, 0);
    EXPECT_EQ(6u, m_host.asked.size());
    EXPECT_THAT(m_host.takeCommands(), IsEmpty()) << "the menu is the only thing it does";
}

TEST_F(ToolButton, menuButton_keepsItsKeysFromTheDialog) {
    MSG key{m_button, WM_KEYDOWN, VK_DOWN, 0, 0, {}};
    const auto wanted = [&] {
        return (SendMessageW(m_button, WM_GETDLGCODE, key.wParam, reinterpret_cast<LPARAM>(&key)) & DLGC_WANTMESSAGE) !=
               0;
    };
    EXPECT_FALSE(wanted()) << "arrows move the focus on from a plain button";
    m_button.SetToolButton(1);
    EXPECT_TRUE(wanted());
    key.wParam = VK_ESCAPE;
    EXPECT_FALSE(wanted());
}

TEST_F(ToolButton, picture_replacesTheTextAndFadesWhenDisabled) {
    const auto text = paintedBy(m_button);
    m_button.SetPictureId(IDB_KNAV_VIEWS);
    const auto picture = paintedBy(m_button);
    EXPECT_NE(text, picture);
    m_button.EnableWindow(FALSE);
    EXPECT_NE(picture, paintedBy(m_button));
    m_button.EnableWindow(TRUE);
    m_button.SetToolButton(1);
    EXPECT_NE(picture, paintedBy(m_button)) << "with an arrow";
    CString name;
    m_button.GetWindowText(name);
    EXPECT_EQ(L"&Views", std::wstring(name)) << "the name for assistive tools stays";
}

TEST(PictureTones, onADarkBackground_darkAndLightAreExchanged) {
    EXPECT_EQ(PictureTone::Plain, toneOn(RGB(240, 240, 240), PictureTone::Plain));
    EXPECT_EQ(PictureTone::Faded, toneOn(RGB(255, 255, 255), PictureTone::Faded));
    EXPECT_EQ(PictureTone::Light, toneOn(RGB(0, 0, 0), PictureTone::Plain));
    EXPECT_EQ(PictureTone::LightFaded, toneOn(RGB(0, 0, 0), PictureTone::Faded));
    const GdiPlusSession session;
    Gdiplus::Bitmap dark(1, 1, PixelFormat32bppARGB);
    dark.SetPixel(0, 0, Gdiplus::Color(255, 0x20, 0x20, 0x20));
    const zoui::WindowDC screen(nullptr);
    const zoui::UniqueMemoryDC dc(CreateCompatibleDC(screen));
    const zoui::UniqueBitmap bitmap(CreateCompatibleBitmap(screen, 1, 1));
    const zoui::SelectedObject selected(dc.get(), bitmap.get());
    drawPicture(dc.get(), dark, {0, 0, 1, 1}, PictureTone::Light);
    EXPECT_GT(GetRValue(GetPixel(dc.get(), 0, 0)), 0xC0);
}

// In a mirrored context the picture stands where its rectangle is, and is not turned round.
TEST(PictureTones, mirroredContext_movesThePictureAndLeavesItAsItIs) {
    const GdiPlusSession session;
    Gdiplus::Bitmap picture(2, 1, PixelFormat32bppARGB);
    picture.SetPixel(0, 0, Gdiplus::Color(255, 255, 0, 0));
    picture.SetPixel(1, 0, Gdiplus::Color(255, 0, 0, 255));
    const zoui::WindowDC screen(nullptr);
    const zoui::UniqueMemoryDC dc(CreateCompatibleDC(screen));
    const zoui::UniqueBitmap bitmap(CreateCompatibleBitmap(screen, 10, 1));
    const zoui::SelectedObject selected(dc.get(), bitmap.get());
    SetLayout(dc.get(), LAYOUT_RTL);
    drawPicture(dc.get(), picture, {1, 0, 3, 1}, PictureTone::Plain);
    EXPECT_EQ(LAYOUT_RTL, GetLayout(dc.get()) & LAYOUT_RTL);
    SetLayout(dc.get(), 0);
    int red = -1;
    for (int x = 9; x >= 0; --x) {
        if (GetRValue(GetPixel(dc.get(), x, 0)) > 128)
            red = x;
    }
    EXPECT_GE(red, 6) << "one from the right end";
    EXPECT_LE(red, 7);
    EXPECT_GT(GetBValue(GetPixel(dc.get(), red + 1, 0)), 128) << "blue is still right of red";
}

TEST_F(ToolButton, directionalPicture_pointsTheOtherWayInAMirroredWindow) {
    m_button.SetPictureId(IDB_KNAV_BACK);
    const auto ordinary = paintedBy(m_button);
    m_button.SetPictureDirectional(1);
    EXPECT_EQ(ordinary, paintedBy(m_button));
    m_button.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    m_button.SetPictureDirectional(0);
    const auto same = paintedBy(m_button);
    m_button.SetPictureDirectional(1);
    EXPECT_NE(same, paintedBy(m_button));
}

TEST_F(ToolButton, pointer_lightsItUpUntilItLeaves) {
    m_button.SetPictureId(IDB_KNAV_VIEWS);
    const auto normal = paintedBy(m_button);
    SendMessageW(m_button, WM_MOUSEMOVE, 0, kOnText);
    EXPECT_NE(normal, paintedBy(m_button));
    SendMessageW(m_button, WM_MOUSELEAVE, 0, 0);
    EXPECT_EQ(normal, paintedBy(m_button));
}

TEST_F(ToolButton, tip_isMadeWhenFirstNeeded) {
    m_button.SetTipText(L"Views (Ctrl+V)");
    const auto tips = [] {
        int count = 0;
        EnumThreadWindows(
            GetCurrentThreadId(),
            [](HWND window, LPARAM out) -> BOOL {
                wchar_t name[64];
                GetClassNameW(window, name, 64);
                *reinterpret_cast<int*>(out) += lstrcmpiW(name, TOOLTIPS_CLASSW) == 0;
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&count));
        return count;
    };
    EXPECT_EQ(0, tips());
    SendMessageW(m_button, WM_MOUSEMOVE, 0, kOnText);
    EXPECT_EQ(1, tips());
    m_button.DestroyWindow();
    EXPECT_EQ(0, tips());
}

TEST(Buttons, madePaintedAndGone_leaveNothingBehind) {
    const ResourcesInUse resources;
    const GdiPlusSession keptStarted;
    const ObjectCounts growth = growthOver(5, [] {
        ButtonHost host;
        CNavToolsButton tool;
        CNavComboButton combo;
        tool.SetPictureId(IDB_KNAV_TOOLS);
        tool.SetTipText(L"tip");
        tool.SubclassWindow(host.addButton(BS_PUSHBUTTON));
        combo.SubclassWindow(host.addButton(BS_DEFPUSHBUTTON));
        SendMessageW(tool, WM_MOUSEMOVE, 0, kOnText);
        paintedBy(tool);
        paintedBy(combo);
        host.takeCommands();
    });
    EXPECT_EQ(ObjectCounts{}, growth);
}

}  // namespace
}  // namespace knav::test
