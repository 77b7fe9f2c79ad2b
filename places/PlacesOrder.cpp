#include "places/PlacesOrder.h"

#include <knav/CNavListBox.h>

#include "places/PlacesRules.h"

namespace knav {

void writePlacesOrder(const CNavListBox& list,
                      const std::function<void(const CString& name, const CString& value)>& write) {
    const int count = list.GetCount();
    for (int i = 0; i < count; ++i) {
        const bool inExtension = list.GetItemType(i) == PlacesItemFolder;
        write(orderValue(i), list.GetItemName(i));
        write(orderValue(i, kOrderDisplay), list.GetItemDisplayText(i));
        write(orderValue(i, kOrderExtension), inExtension ? list.GetItemExtensionName(i) : CString());
    }
    write(orderValue(count), CString());
}

}  // namespace knav
