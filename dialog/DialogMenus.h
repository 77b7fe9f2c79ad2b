// Rules of the menus, without windows.
#pragma once

#include <platform/CString.h>

class CMenu;

namespace knav {

/// What the Tools menu depends on.
struct ToolsMenuFacts {
    unsigned int present = 0;  ///< the items that the host wants, bits of NavToolsMenuItem
    bool hasName = false;      ///< a name is typed
    bool hasPlaces = false;    ///< there is a Places list
    bool isPlace = false;      ///< the folder shown is a place
    bool isRemote = false;     ///< the folder shown is a URL
    CString folder;            ///< its name
    int selected = 0;          ///< items selected in it
};

/// Takes out of the Tools menu what is not there, grays what cannot be done now, and fills its Favorites submenu.
void prepareToolsMenu(CMenu& menu, const ToolsMenuFacts& facts);

/// Position of an item in the unprepared Tools menu; -1 for anything that is not exactly one item.
int toolsMenuItemPosition(unsigned int item);

/// The Views menu's command for a view mode, or 0.
unsigned int viewCommandOf(unsigned int mode);

/// Removes the lines that part nothing from nothing, as deleted entries leave them: at either end, and next to another.
void dropIdleSeparators(CMenu& menu);

}  // namespace knav
