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
    const auto shortenedTo = [](int available, CString text = L"Documents") {
        const CString before = text;
        const auto widthOf = [](const CString& part) { return part.GetLength() * 10; };
        const bool shortened = shortenLabel(text, available, 5, widthOf);
        EXPECT_EQ(shortened, text != before);
        return text;
    };
    EXPECT_EQ(CString(L"Documents"), shortenedTo(100)) << "fits exactly";
    EXPECT_EQ(CString(L"Docum..."), shortenedTo(99)) << "one too many costs four";
    EXPECT_EQ(CString(L"..."), shortenedTo(40)) << "hardly any room";
    EXPECT_EQ(CString(L"..."), shortenedTo(0));
    EXPECT_EQ(CString(), shortenedTo(0, L"")) << "nothing to shorten";
}

TEST(DropIndex, pointer_decides) {
    constexpr int kRowHeight = 60;
    constexpr int kRows = 5;
    EXPECT_EQ(2, insertionIndex(29, kRowHeight, 2, kRows)) << "upper half of the first row shown";
    EXPECT_EQ(3, insertionIndex(30, kRowHeight, 2, kRows)) << "lower half of it";
    EXPECT_EQ(5, insertionIndex(1000, kRowHeight, 0, kRows)) << "below the last row";
    EXPECT_EQ(0, insertionIndex(-500, kRowHeight, 0, kRows)) << "above the list";
}

}  // namespace
}  // namespace knav
