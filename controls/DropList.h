// The list window of a combo box while it is dropped down.
#pragma once

#include <platform/CWnd.h>
#include <platform/MessageMap.h>

namespace knav {

/// Opens with whole rows at once. Left alone, some systems' list is shown first and cut to whole rows then, and paints
/// its frame and scroll bar for each.
class DropList : public CWnd {
public:
    void OnWindowPosChanging(WINDOWPOS* place);

    DECLARE_MESSAGE_MAP()
};

}  // namespace knav
