#include "places/PlacesRules.h"

#include <gtest/gtest.h>

#include "support/Printers.h"

namespace knav {
namespace {

TEST(PlacesMeasures, resolution_scalesAndRounds) {
    EXPECT_EQ(8, rowMeasures(96).margin);
    EXPECT_EQ(10, rowMeasures(120).margin);
    EXPECT_EQ(5, rowMeasures(120).gap);
    EXPECT_EQ(12, rowMeasures(144).margin);
    EXPECT_EQ(3 * 4 + 13 + 32, rowHeight(rowMeasures(96), 13, 32));
}

TEST(PlacesPicture, narrowAndWideRows_centreOrStartAtTheMargin) {
    const RowMeasures measures{8, 4};
    EXPECT_EQ(8 + 34, pictureOffset(measures, 100, 32));
    EXPECT_EQ(8, pictureOffset(measures, 32, 32));
    EXPECT_EQ(8, pictureOffset(measures, 20, 32));
}

struct ShortenRow {
    const char* why;
    const wchar_t* text;
    int available;  // every character is 10 wide, the margin is 5
    bool shortened;
    const wchar_t* expected;
};

class ShortenedLabel : public testing::TestWithParam<ShortenRow> {};

TEST_P(ShortenedLabel, room_decides) {
    const ShortenRow& row = GetParam();
    CString text(row.text);
    const auto widthOf = [](const CString& part) { return part.GetLength() * 10; };
    EXPECT_EQ(row.shortened, shortenLabel(text, row.available, 5, widthOf)) << row.why;
    EXPECT_EQ(CString(row.expected), text) << row.why;
}

INSTANTIATE_TEST_SUITE_P(Rows, ShortenedLabel,
                         testing::Values(ShortenRow{"fits exactly", L"Documents", 100, false, L"Documents"},
                                         ShortenRow{"one too many costs four", L"Documents", 99, true, L"Docum..."},
                                         ShortenRow{"hardly any room", L"Documents", 40, true, L"..."},
                                         ShortenRow{"no room at all", L"Documents", 0, true, L"..."},
                                         ShortenRow{"nothing to shorten", L"", 0, false, L""}));

struct DropRow {
    const char* why;
    int y;
    int top;
    int expected;
};

class DropIndex : public testing::TestWithParam<DropRow> {};

TEST_P(DropIndex, pointer_decides) {
    EXPECT_EQ(GetParam().expected, insertionIndex(GetParam().y, 60, GetParam().top, 5)) << GetParam().why;
}

INSTANTIATE_TEST_SUITE_P(Rows, DropIndex,
                         testing::Values(DropRow{"upper half of the first row", 29, 0, 0},
                                         DropRow{"lower half of the first row", 30, 0, 1},
                                         DropRow{"scrolled", 30, 2, 3}, DropRow{"below the last row", 1000, 0, 5},
                                         DropRow{"above the list", -500, 0, 0}));

TEST(DropIndex, rowTakenOutBefore_movesTheTarget) {
    EXPECT_EQ(2, indexAfterRemoval(0, 3));
    EXPECT_EQ(1, indexAfterRemoval(3, 1));
    EXPECT_EQ(2, indexAfterRemoval(2, 2)) << "before itself";
    EXPECT_EQ(2, indexAfterRemoval(2, 3)) << "behind itself";
}

TEST(StandardPlaces, keyword_isFoundInAnyCase) {
    ASSERT_NE(nullptr, findStandardPlace(L"hiSTory"));
    EXPECT_EQ(PlacesItemHistory, findStandardPlace(L"hiSTory")->type);
    EXPECT_EQ(nullptr, findStandardPlace(L"Historyx"));
    EXPECT_EQ(nullptr, findStandardPlace(static_cast<const wchar_t*>(nullptr)));
    EXPECT_EQ(nullptr, findStandardPlace(PlacesItemFolder));
}

TEST(FolderLabel, lastName_slashWinsOverBackslash) {
    EXPECT_EQ(CString(L"c"), folderLabel(L"ftp://a/b/c"));
    EXPECT_EQ(CString(L"b\\c"), folderLabel(L"a/b\\c"));
    EXPECT_EQ(CString(L"c"), folderLabel(L"b\\c"));
    EXPECT_EQ(CString(L"plain"), folderLabel(L"plain"));
}

TEST(OrderValue, suffix_followsTheNumber) {
    EXPECT_EQ(CString(L"PlacesOrder0"), orderValue(0));
    EXPECT_EQ(CString(L"PlacesOrder12Display"), orderValue(12, kOrderDisplay));
}

}  // namespace
}  // namespace knav
