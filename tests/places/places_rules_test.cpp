#include "places/PlacesRules.h"

#include <gtest/gtest.h>

#include "support/Printers.h"

namespace knav {
namespace {

TEST(PlacesMeasures, resolution_scalesAndRounds_andPicturesAreCentred) {
    EXPECT_EQ(8, rowMeasures(96).margin);
    EXPECT_EQ(10, rowMeasures(120).margin);
    EXPECT_EQ(5, rowMeasures(120).gap);
    EXPECT_EQ(3 * 4 + 13 + 32, rowHeight(rowMeasures(96), 13, 32));
    EXPECT_EQ(8 + 34, pictureOffset({8, 4}, 100, 32));
    EXPECT_EQ(8, pictureOffset({8, 4}, 20, 32)) << "a narrow row begins at the margin";
}

TEST(ShortenedLabel, room_decides) {
    const struct {
        const char* why;
        const wchar_t* text;
        int available;  // every character is 10 wide, the margin is 5
        bool shortened;
        const wchar_t* expected;
    } rows[] = {
        {"fits exactly", L"Documents", 100, false, L"Documents"},
        {"one too many costs four", L"Documents", 99, true, L"Docum..."},
        {"hardly any room", L"Documents", 40, true, L"..."},
        {"no room at all", L"Documents", 0, true, L"..."},
        {"nothing to shorten", L"", 0, false, L""},
    };
    const auto widthOf = [](const CString& part) { return part.GetLength() * 10; };
    for (const auto& row : rows) {
        CString text(row.text);
        EXPECT_EQ(row.shortened, shortenLabel(text, row.available, 5, widthOf)) << row.why;
        EXPECT_EQ(CString(row.expected), text) << row.why;
    }
}

TEST(DropIndex, pointer_decides) {
    constexpr int kRowHeight = 60;
    constexpr int kRows = 5;
    EXPECT_EQ(0, insertionIndex(29, kRowHeight, 0, kRows)) << "upper half of the first row";
    EXPECT_EQ(1, insertionIndex(30, kRowHeight, 0, kRows)) << "lower half of it";
    EXPECT_EQ(3, insertionIndex(30, kRowHeight, 2, kRows)) << "scrolled";
    EXPECT_EQ(5, insertionIndex(1000, kRowHeight, 0, kRows)) << "below the last row";
    EXPECT_EQ(0, insertionIndex(-500, kRowHeight, 0, kRows)) << "above the list";
}

}  // namespace
}  // namespace knav
