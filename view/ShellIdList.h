// The "Shell IDList Array" clipboard format: which items of one folder a data object stands for.
#pragma once

#include "shell/ItemList.h"

#include <cstddef>
#include <span>
#include <vector>

namespace knav {

/// The items in the format's bytes, in order, each relative to the folder that the array names first. Nothing is read
/// outside of the bytes: an item that does not lie in them ends the array.
std::vector<ItemList> readShellIdList(std::span<const std::byte> bytes);

/// The items of a data object; none when it does not offer the format.
std::vector<ItemList> itemsOf(IDataObject* object);

}  // namespace knav
