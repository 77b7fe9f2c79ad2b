// The "Shell IDList Array" clipboard format: which items of one folder a data object stands for.
#pragma once

#include "shell/ItemList.h"

#include <cstddef>
#include <span>
#include <vector>

namespace knav {

struct ShellIdList {
    ItemList folder;              ///< qualified; null when its list does not lie in the bytes
    std::vector<ItemList> items;  ///< in order, each relative to the folder
};

/// Reads the format's bytes and nothing outside of them: an item that does not lie in them ends the array.
ShellIdList readShellIdList(std::span<const std::byte> bytes);

/// The array of a data object; an empty one when it does not offer the format.
ShellIdList shellIdListOf(IDataObject* object);

/// Whether a data object offers the format.
bool offersShellIdList(IDataObject* object);

}  // namespace knav
