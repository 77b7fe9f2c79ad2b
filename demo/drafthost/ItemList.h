// Shows what the file dialog returned.
#pragma once

#include <knav/CNavDataArray.h>
#include <platform/CListCtrl.h>

/// A row for each item, a column for each thing that a host reads from it.
class ItemList : public CListCtrl {
public:
    /// Call once, when the control exists.
    void makeColumns();
    /// Gives the room that the other columns leave to the first one.
    void fitColumns();
    void show(const CNavDataArray& items);
};

/// The kind of an item in words.
const wchar_t* nameOf(NAV_DATA_TYPE type);
