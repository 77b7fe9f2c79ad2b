// The short name of an item.
#pragma once

#include <platform/CString.h>

/// What follows the last "\" of the item's parsing name, else the last "/", else the last ":", else the whole name. A
/// null folder means the desktop. Nonzero when the item has a parsing name; `out` may be empty then.
int NavGetItemLastPathComponent(IShellFolder* folder, ITEMIDLIST* list, CString& out);
