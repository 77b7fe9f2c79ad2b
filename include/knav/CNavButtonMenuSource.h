#pragma once

#include <platform/Windows.h>

class CMenu;

/// Supplies the menus that menu buttons drop. Implemented by whoever owns the buttons (the dialog); the buttons keep a
/// plain pointer to it, so it must outlive them or be taken away first. User-interface thread only.
class CNavButtonMenuSource {
public:
    /// The button with the control id `buttonId` is about to drop its menu. Load a menu bar into `menu`, which has
    /// no menu yet: the first popup of the bar is what drops. Return nonzero to show it. The button destroys it
    /// afterwards; what the user chooses arrives at the button's parent as WM_COMMAND.
    virtual int PrepareButtonMenu(UINT buttonId, CMenu& menu) = 0;

protected:
    ~CNavButtonMenuSource() = default;
};
