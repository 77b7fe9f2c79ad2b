// Rules of the menus, without windows.
#pragma once

class CMenu;

namespace knav {

/// Position of an item in the unprepared Tools menu; -1 for anything that is not exactly one item.
int toolsMenuItemPosition(unsigned int item);

/// The Views menu's command for a view mode, or 0.
unsigned int viewCommandOf(unsigned int mode);

/// Removes the lines that part nothing from nothing, as deleted entries leave them: at either end, and next to another.
void dropIdleSeparators(CMenu& menu);

}  // namespace knav
