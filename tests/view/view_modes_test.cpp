#include "view/ViewModes.h"

#include <gtest/gtest.h>

namespace {

using namespace knav;

TEST(ViewModes, EachMode_HasItsViewIdAndListView) {
    const struct {
        unsigned mode;
        const wchar_t* viewId;
        DWORD listView;
    } rows[] = {
        {1, L"{0057D0E0-3573-11CF-AE69-08002B2E1262}", 0}, {2, L"{089000C0-3573-11CF-AE69-08002B2E1262}", 2},
        {3, L"{0E1FA5E0-3573-11CF-AE69-08002B2E1262}", 3}, {4, L"{137E7700-3573-11CF-AE69-08002B2E1262}", 1},
        {5, L"{8BEBB290-52D0-11D0-B7F4-00C04FD706EC}", 5}, {6, L"{65F125E5-7BE1-4810-BA9D-D271C8432CE3}", 4},
        {0, L"{8BEBB290-52D0-11D0-B7F4-00C04FD706EC}", 3}, {7, L"{8BEBB290-52D0-11D0-B7F4-00C04FD706EC}", 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.mode);
        wchar_t text[40];
        StringFromGUID2(viewIdOf(row.mode), text, 40);
        EXPECT_EQ(std::wstring_view(text), row.viewId);
        EXPECT_EQ(listViewOf(row.mode), row.listView);
    }
}

TEST(ViewModes, FactsOfList_GiveTheModeShown) {
    const struct {
        const char* why;
        ListViewFacts facts;
        unsigned mode;
    } rows[] = {
        {"details", {1, 0, 75, 0}, 4},
        {"small icons", {2, 0, 75, 0}, 2},
        {"list", {3, 0, 75, 0}, 3},
        {"tiles", {4, 0, 75, 0}, 6},
        {"icons as far apart as the system's", {0, 75, 75, 0}, 1},
        {"icons further apart are thumbnails", {0, 76, 75, 0}, 5},
        {"a view nobody knows", {9, 0, 75, 0}, 5},
        {"a list marked as thumbnails, whatever it shows", {1, 0, 75, 5}, 5},
        {"any other mark means nothing", {1, 0, 75, 3}, 4},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        EXPECT_EQ(modeOfList(row.facts), row.mode);
    }
}

}  // namespace
