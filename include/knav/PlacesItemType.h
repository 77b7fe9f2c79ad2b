#pragma once

/// Kind of a row of the Places list. The numbers are compared; they never change.
enum PlacesItemType {
    PlacesItemNone = 0,           ///< no such place
    PlacesItemHistory = 1,        ///< the History folder of the dialog
    PlacesItemPersonal = 2,       ///< the user's documents
    PlacesItemDesktop = 3,        ///< the desktop
    PlacesItemFavorites = 4,      ///< the user's Favorites
    PlacesItemExtensionRoot = 5,  ///< the root of a navigation extension
    PlacesItemFolder = 6          ///< a folder: the user's own, or one inside an extension
};
