#include "view/ViewModes.h"

#include <gtest/gtest.h>

namespace {

using namespace knav;

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
