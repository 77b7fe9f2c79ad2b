#include <uxtheme.h>

#include <gmock/gmock.h>

#include <knav/CNavComboButton.h>
#include <knav/CNavToolsButton.h>

#include "controls/Canvas.h"
#include "controls/ControlHost.h"
#include "controls/GdiPlus.h"
#include "resources/ids.h"
#include "support/ObjectCounts.h"

namespace knav::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr LPARAM kOnText = MAKELPARAM(20, 10);
constexpr LPARAM kOnArrow = MAKELPARAM(95, 10);
const auto kClicked = Pair(kControlId, BN_CLICKED);

void clickAt(HWND button, LPARAM where, UINT how = WM_LBUTTONDOWN) {
    SendMessageW(button, how, MK_LBUTTON, where);
    SendMessageW(button, WM_LBUTTONUP, 0, where);
}

// Calls `body` with visual styles as they are, and without them.
void eachStyle(HWND button, const std::function<void()>& body) {
    body();
    SCOPED_TRACE("without visual styles");
    SetWindowTheme(button, L" ", L" ");
    body();
}

// --- the push button with a menu -------------------------------------------------------------------------------

class ComboButton : public testing::Test {
protected:
    ComboButton() {
        m_button.SubclassWindow(m_host.addButton(BS_DEFPUSHBUTTON));
        m_button.SetMenuSource(&m_host);
    }

    ControlHost m_host;
    CNavComboButton m_button;
};

TEST_F(ComboButton, clickOnText_isAnOrdinaryClick_clickOnArrowDropsTheMenu) {
    clickAt(m_button, kOnText);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(kClicked));
    EXPECT_THAT(m_host.asked, IsEmpty());
    m_host.whileOpen = [&] {
        EXPECT_EQ(CNavComboButton::MenuPart, m_button.GetPressedPart());
        EXPECT_EQ(1, m_button.GetMenuOpen());
    };
    clickAt(m_button, kOnArrow);
    EXPECT_THAT(m_host.takeCommands(), IsEmpty());
    EXPECT_THAT(m_host.asked, ElementsAre(kControlId));
    EXPECT_EQ(0, m_button.GetMenuOpen());
    EXPECT_EQ(CNavComboButton::NoPart, m_button.GetPressedPart());
    m_button.SetMenuExists(0);
    clickAt(m_button, kOnArrow);
    SendMessageW(m_button, WM_SYSKEYDOWN, VK_DOWN, 0);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(kClicked)) << "no arrow: a push button all over";
}

TEST_F(ComboButton, altDownThenEnter_choosesTheFirstEntry_unlessTheMenuWasClosed) {
    m_host.closingKey = VK_RETURN;
    SendMessageW(m_button, WM_SYSKEYDOWN, VK_DOWN, 0);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(Pair(static_cast<int>(kFirstCommand), 0)));
    SendMessageW(m_button, WM_SYSKEYDOWN, VK_F4, 0);
    EXPECT_EQ(1u, m_host.asked.size()) << "Alt+F4 closes the dialog";
    m_host.whileOpen = [&] { m_button.ClearState(); };
    m_button.DropMenu(1);
    EXPECT_THAT(m_host.takeCommands(), IsEmpty()) << "the menu was gone before the key came";
    EXPECT_EQ(0, m_button.GetMenuOpen());
}

TEST_F(ComboButton, disabledOrWithoutMenu_dropsNothing) {
    m_host.hasMenu = false;
    EXPECT_EQ(0, m_button.DropMenu(0));
    m_button.EnableWindow(FALSE);
    EXPECT_EQ(0, m_button.DropMenu(0));
    EXPECT_THAT(m_host.asked, ElementsAre(kControlId)) << "only while it was enabled";
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
    eachStyle(m_button, [this] {
        const auto normal = paintedBy(m_button);
        m_button.SendMessage(BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
        EXPECT_NE(normal, paintedBy(m_button)) << "not the default button";
        m_button.SendMessage(BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
        m_button.SetMenuExists(0);
        EXPECT_NE(normal, paintedBy(m_button)) << "no arrow";
        m_button.SetMenuExists(1);
        m_button.SendMessage(BM_SETSTATE, TRUE);
        EXPECT_NE(normal, paintedBy(m_button)) << "pressed";
        m_button.SendMessage(BM_SETSTATE, FALSE);
        m_button.EnableWindow(FALSE);
        EXPECT_NE(normal, paintedBy(m_button)) << "disabled";
        m_button.EnableWindow(TRUE);
        EXPECT_EQ(normal, paintedBy(m_button)) << "and back";
    });
}

// --- toolbar buttons -------------------------------------------------------------------------------------------

class ToolButton : public testing::Test {
protected:
    ToolButton() { m_button.SubclassWindow(m_host.addButton(BS_PUSHBUTTON, L"&Views", {10, 10, 50, 34})); }

    ResourcesInUse m_resources;
    ControlHost m_host;
    CNavToolsButton m_button;
};

TEST_F(ToolButton, notAMenuButton_isClickedByMouseAndEnter) {
    clickAt(m_button, kOnText);
    clickAt(m_button, kOnText, WM_LBUTTONDBLCLK);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(kClicked, kClicked)) << "a double click counts as two";
    SendMessageW(m_button, WM_KEYDOWN, VK_RETURN, 0);
    SendMessageW(m_button, WM_KEYDOWN, VK_RETURN, static_cast<LPARAM>(KF_REPEAT) << 16);
    EXPECT_THAT(m_host.takeCommands(), ElementsAre(kClicked)) << "an Enter that is held down clicks once";
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
    const auto wants = [this](WPARAM key) {
        MSG press{m_button, WM_KEYDOWN, key, 0, 0, {}};
        return (m_button.SendMessage(WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(&press)) & DLGC_WANTMESSAGE) != 0;
    };
    EXPECT_FALSE(wants(VK_DOWN)) << "arrows move the focus on from a plain button";
    m_button.SetToolButton(1);
    EXPECT_TRUE(wants(VK_DOWN));
    EXPECT_FALSE(wants(VK_ESCAPE));
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
    EXPECT_EQ(name, L"&Views") << "the name for assistive tools stays";
}

TEST_F(ToolButton, directionalPicture_pointsTheOtherWayInAMirroredWindow) {
    m_button.SetPictureId(IDB_KNAV_BACK);
    const auto painted = [this](int directional) {
        m_button.SetPictureDirectional(directional);
        return paintedBy(m_button);
    };
    EXPECT_EQ(painted(0), painted(1));
    m_button.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    EXPECT_NE(painted(0), painted(1));
}

TEST_F(ToolButton, pointer_lightsItUpUntilItLeaves) {
    m_button.SetPictureId(IDB_KNAV_VIEWS);
    eachStyle(m_button, [this] {
        const auto normal = paintedBy(m_button);
        SendMessageW(m_button, WM_MOUSEMOVE, 0, kOnText);
        EXPECT_NE(normal, paintedBy(m_button));
        SendMessageW(m_button, WM_MOUSELEAVE, 0, 0);
        EXPECT_EQ(normal, paintedBy(m_button));
    });
}

TEST(Buttons, madePaintedAndGone_leaveNothingBehind) {
    const ResourcesInUse resources;
    const GdiPlusSession keptStarted;
    const ObjectCounts growth = growthOver(5, [] {
        ControlHost host;
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
