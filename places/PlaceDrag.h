// A row of the Places list under the mouse button.
#pragma once

#include <platform/Windows.h>

namespace knav {

struct PlaceDrag {
    int row = -1;           ///< the row that was pressed
    POINT press{};          ///< where, in client coordinates
    POINT last{};           ///< where the pointer is now
    bool dragging = false;  ///< the pointer has left the neighbourhood of the press point
    bool moved = false;     ///< let go now, the row changes its place
    int indicator = -1;     ///< the indicator stands before this row; -1: it does not show
    RECT screen{};          ///< the list on the screen
    int count = 0;          ///< rows
    int visible = 0;        ///< rows that show as a whole
};

}  // namespace knav
