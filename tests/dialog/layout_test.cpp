#include "dialog/Layout.h"

#include <gtest/gtest.h>

namespace knav {
namespace {

constexpr SIZE kTemplate{600, 400};
constexpr RECT kBody{120, 40, 580, 300};
constexpr UINT kBodyId = 1;

enum Ids : UINT { kPlaces = 10, kLookIn, kUp, kOk, kName, kNameLabel, kStranger };

constexpr GrowRow kRows[] = {
    {kPlaces, Grow::Stay, Grow::Stretch}, {kLookIn, Grow::Stretch, Grow::Stay}, {kUp, Grow::Move, Grow::Stay},
    {kOk, Grow::Move, Grow::Move},        {kName, Grow::Stretch, Grow::Move},   {kNameLabel, Grow::Stay, Grow::Move},
};

void expectRect(const RECT& expected, const RECT& actual, const char* why) {
    EXPECT_TRUE(EqualRect(&expected, &actual))
        << why << ": got " << actual.left << "," << actual.top << "," << actual.right << "," << actual.bottom;
}

struct PlaceRow {
    const char* why;
    UINT id;
    RECT at;
    RECT expected;  // with the client area 100 wider and 50 taller
};

class LayoutOfOne : public testing::TestWithParam<PlaceRow> {};

TEST_P(LayoutOfOne, grownDialog_puts) {
    const PlaceRow& row = GetParam();
    Layout layout(kTemplate, kRows, kBodyId, kBody);
    layout.add(row.id, row.at);
    expectRect(row.expected, layout.rectOf(0, {700, 450}), row.why);
    expectRect(row.at, layout.rectOf(0, kTemplate), "the template's own size changes nothing");
    expectRect(layout.rectOf(0, layout.leastSize()), layout.rectOf(0, {0, 0}), "smaller than the smallest");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LayoutOfOne,
    testing::Values(
        PlaceRow{"the body takes the room", kBodyId, kBody, {120, 40, 680, 350}},
        PlaceRow{"a known control stretches down", kPlaces, {8, 40, 108, 390}, {8, 40, 108, 440}},
        PlaceRow{"a known control keeps its distance from the corner", kOk, {500, 310, 580, 334}, {600, 360, 680, 384}},
        PlaceRow{"stranger right of the body moves", kStranger, {585, 60, 598, 80}, {685, 60, 698, 80}},
        PlaceRow{"stranger under the body moves down", kStranger, {120, 370, 300, 390}, {120, 420, 300, 440}},
        PlaceRow{
            "stranger under the right half follows the corner", kStranger, {400, 340, 480, 360}, {500, 390, 580, 410}},
        PlaceRow{"stranger as wide as the body stretches", kStranger, {124, 370, 576, 372}, {124, 420, 676, 422}},
        PlaceRow{"stranger above the body stays up", kStranger, {8, 8, 60, 20}, {8, 8, 60, 20}},
        PlaceRow{"stranger beside the body, as tall, stretches", kStranger, {585, 40, 598, 300}, {685, 40, 698, 350}}));

TEST(Layout, templateWithoutBody_leavesStrangersAndMovesKnownControls) {
    Layout layout(kTemplate, kRows, kBodyId, std::nullopt);
    layout.add(kStranger, {500, 310, 580, 334});
    layout.add(kOk, {500, 340, 580, 364});
    expectRect({500, 310, 580, 334}, layout.rectOf(0, {700, 450}), "stranger");
    expectRect({600, 390, 680, 414}, layout.rectOf(1, {700, 450}), "known");
}

Layout withColumn() {
    Layout layout(kTemplate, kRows, kBodyId, kBody);
    layout.add(kPlaces, {8, 40, 108, 300});
    layout.add(kBodyId, kBody);
    layout.add(kNameLabel, {120, 340, 180, 352});
    layout.add(kName, {190, 336, 480, 356});
    layout.add(kOk, {500, 336, 580, 360});
    return layout;
}

TEST(Layout, leastSize_leavesHalfOfWhatStretchesAndNothingCovered) {
    Layout layout = withColumn();
    EXPECT_EQ(kTemplate.cx - 290 / 2, layout.leastSize().cx) << "half of the name field";
    EXPECT_EQ(kTemplate.cy - 260 / 2, layout.leastSize().cy) << "half of the body and the column";
    expectRect({190, 206, 335, 226}, layout.rectOf(3, layout.leastSize()), "name field");
    expectRect({355, 206, 435, 230}, layout.rectOf(4, layout.leastSize()), "OK");
    layout.add(kStranger, {300, 180, 330, 370});  // beside the body, it stays across
    layout.add(kUp, {390, 340, 420, 360});
    EXPECT_EQ(kTemplate.cx - 60, layout.leastSize().cx) << "a button moves up to what stays and no further";
}

TEST(Layout, joinedRows_putTheButtonsSideBySideAndGrowTheBody) {
    Layout layout(kTemplate, kRows, kBodyId, kBody);
    layout.add(kBodyId, kBody);
    layout.add(kOk, {500, 340, 580, 360});
    layout.add(kUp, {500, 366, 580, 386});
    layout.joinRows(kOk, kUp);
    expectRect({414, 366, 494, 386}, layout.rectOf(1, kTemplate), "with the gap that was between the rows");
    expectRect({500, 366, 580, 386}, layout.rectOf(2, kTemplate), "the lower one stays");
    expectRect({120, 40, 580, 326}, layout.rectOf(0, kTemplate), "the body");
    layout.joinRows(kOk, kUp);
    expectRect({414, 366, 494, 386}, layout.rectOf(1, kTemplate), "once is enough");
}

TEST(Layout, closedColumn_givesItsRoomToTheRight) {
    Layout layout = withColumn();
    layout.closeColumn(kPlaces);
    expectRect({8, 40, 580, 300}, layout.rectOf(1, kTemplate), "the body starts where the column did");
    expectRect({8, 340, 68, 352}, layout.rectOf(2, kTemplate), "a label moves along");
    expectRect({78, 336, 480, 356}, layout.rectOf(3, kTemplate), "a field grows to the left");
    expectRect({500, 336, 580, 360}, layout.rectOf(4, kTemplate), "a button at the far edge stays");
}

TEST(Layout, closedColumnWithALabelAboveIt_leavesThatRow) {
    Layout layout = withColumn();
    layout.add(kStranger, {8, 12, 108, 24});
    layout.add(kLookIn, {120, 8, 400, 28});
    layout.closeColumn(kPlaces);
    expectRect({120, 8, 400, 28}, layout.rectOf(6, kTemplate), "its label is in the way");
    expectRect({8, 12, 108, 24}, layout.rectOf(5, kTemplate), "the label itself");
}

TEST(Layout, closedGap_goesToWhatStretchesBeforeIt) {
    Layout layout(kTemplate, kRows, kBodyId, kBody);
    layout.add(kLookIn, {120, 8, 400, 28});
    layout.add(kOk, {410, 8, 430, 28});
    layout.add(kUp, {430, 8, 450, 28});
    layout.add(kStranger, {450, 8, 470, 28});
    layout.add(kStranger, {470, 8, 490, 28});
    layout.closeGap(kUp);
    expectRect({120, 8, 420, 28}, layout.rectOf(0, kTemplate), "what stretches");
    expectRect({430, 8, 450, 28}, layout.rectOf(1, kTemplate), "what stands between moves up to the next");
    expectRect({450, 8, 470, 28}, layout.rectOf(3, kTemplate), "what stands behind stays");
}

TEST(Layout, closingAColumnThatIsNotThere_changesNothing) {
    Layout layout = withColumn();
    layout.closeColumn(kStranger);
    layout.closeColumn(kOk);
    expectRect(kBody, layout.rectOf(1, kTemplate), "body");
}

}  // namespace
}  // namespace knav
