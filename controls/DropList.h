// The list window of a combo box while it is dropped down.
#pragma once

#include <platform/CWnd.h>
#include <platform/MessageMap.h>

namespace knav {

/// Opens with whole rows at once. Left alone, some systems' list is shown first and cut to whole rows then, and paints
/// its frame and scroll bar for each.
class DropList : public CWnd {
public:
    /// Around the time that the list of `combo` is dropped down.
    void begin(HWND combo, HWND list);
    void end() { UnsubclassWindow(); }

    void OnWindowPosChanging(WINDOWPOS* place);

    DECLARE_MESSAGE_MAP()

private:
    HWND m_combo = nullptr;
};

}  // namespace knav
