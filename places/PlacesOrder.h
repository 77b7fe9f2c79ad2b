// How the order of the Places list is kept.
#pragma once

#include <functional>

#include <platform/CString.h>

class CNavListBox;

namespace knav {

/// Hands the values that keep the rows of `list` to `write`, in order, and then an empty one that ends them.
void writePlacesOrder(const CNavListBox& list,
                      const std::function<void(const CString& name, const CString& value)>& write);

}  // namespace knav
