#include "controls/ButtonRules.h"

#include <vssym32.h>

#include <gtest/gtest.h>

namespace knav {
namespace {

constexpr UINT kNormal = 96;
constexpr UINT kDouble = 192;

TEST(ButtonLook, State_ChoosesThePart) {
    const struct {
        const char* why;
        ButtonState state;
        int push;
        int tool;
        UINT edge;
    } rows[] = {
        {"at rest", {}, PBS_NORMAL, TS_NORMAL, 0},
        {"held down", {.hot = true, .pressed = true}, PBS_PRESSED, TS_PRESSED, BDR_SUNKENOUTER},
        {"menu open", {.dropped = true, .isDefault = true}, PBS_HOT, TS_PRESSED, BDR_SUNKENOUTER},
        {"stays down, hot", {.hot = true, .checked = true}, PBS_HOT, TS_HOTCHECKED, BDR_SUNKENOUTER},
        {"disabled", {.disabled = true, .hot = true, .pressed = true, .checked = true}, PBS_DISABLED, TS_DISABLED, 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.push, pushButtonThemeState(row.state)) << row.why;
        EXPECT_EQ(row.tool, toolButtonThemeState(row.state)) << row.why;
        EXPECT_EQ(row.edge, toolButtonEdge(row.state)) << row.why;
    }
}

TEST(ComboButtonParts, Point_FindsThePart) {
    constexpr RECT button{0, 0, 100, 24};
    EXPECT_EQ(ButtonPart::Main, buttonPartAt(button, kNormal, true, {81, 10}));
    EXPECT_EQ(ButtonPart::Menu, buttonPartAt(button, kNormal, true, {82, 10}));
    EXPECT_EQ(ButtonPart::Menu, buttonPartAt(button, kDouble, true, {66, 10})) << "it grows with the screen";
    EXPECT_EQ(ButtonPart::Main, buttonPartAt(button, kNormal, false, {95, 10})) << "no menu";
    EXPECT_EQ(ButtonPart::None, buttonPartAt(button, kNormal, true, {100, 10}));
    EXPECT_EQ(10, mainPartOf({0, 0, 20, 24}, kDouble, true).right) << "a narrow one keeps half for its text";
}

TEST(ToolButtonLayout, PictureAndArrow_AreCentredTogether) {
    const ToolButtonParts parts = layOutToolButton({0, 0, 40, 24}, {16, 16}, kNormal, true);
    EXPECT_EQ(parts.picture.left, 40 - parts.arrow.right);
    EXPECT_EQ(4, parts.picture.top);
    EXPECT_LT(parts.picture.right, parts.arrow.left);
    const ToolButtonParts alone = layOutToolButton({0, 0, 40, 24}, {16, 16}, kNormal, false);
    EXPECT_EQ(12, alone.picture.left);
    EXPECT_TRUE(IsRectEmpty(&alone.arrow));
}

TEST(DropArrow, AnyResolution_IsSymmetricAndInside) {
    for (const UINT dpi : {96u, 120u, 144u, 192u}) {
        const RECT room{10, 0, 10 + scaled(9, dpi), scaled(24, dpi)};
        const ArrowCorners arrow = dropArrowIn(room, dpi);
        EXPECT_EQ(arrow.corners[2].x - arrow.corners[0].x, arrow.corners[1].x - arrow.corners[2].x) << dpi;
        EXPECT_TRUE(arrow.corners[0].x >= room.left && arrow.corners[1].x < room.right) << dpi;
    }
}

}  // namespace
}  // namespace knav
