#pragma once

/// Items of the Tools menu, as bits of the ToolsMenuItemsPresent option of CNavDialog.
enum NavToolsMenuItem : unsigned int {
    NavToolsFind = 1,             ///< Find files, position 0
    NavToolsLocate = 2,           ///< Locate the typed name along the search path, position 1
    NavToolsItem3 = 4,            ///< third item of the menu, position 2
    NavToolsItem4 = 8,            ///< fourth item of the menu, position 3
    NavToolsAddToPlaces = 16,     ///< Add the current folder to Places, position 4
    NavToolsAddToFavorites = 32,  ///< the Favorites submenu, position 5
};
