// What a row of the Places list stands for.
#pragma once

#include <knav/PlacesItemType.h>
#include <platform/CString.h>

#include "shell/ItemList.h"

namespace knav {

struct PlaceRecord {
    CString name;  ///< a keyword, an extension's name, a full path, or the name of a folder inside an extension
    PlacesItemType type = PlacesItemNone;
    ItemList idList;        ///< qualified; null where the place is resolved by its name
    CString extensionName;  ///< of the extension that the folder lies in
    unsigned flags = 0;
};

}  // namespace knav
