// The items of a combo box, reached through its list window. The combo passes each such message on to it, and every
// window procedure that is hooked into the combo sees it before: with hundreds of items that takes longer than all
// else.
#pragma once

#include "controls/DropList.h"

#include <platform/CString.h>
#include <platform/Windows.h>

namespace knav {

class ComboItems {
public:
    /// Finds the list of `combo` when it is first asked for; a null combo has no items.
    void of(HWND combo);

    int count() const;
    /// Inserts at `index`; the item's index, or a negative number.
    int insert(int index, const wchar_t* text, void* data);
    /// Null for a wrong index.
    void* data(int index) const;
    /// Empty for a wrong index, and in a combo that a host made without strings.
    CString text(int index) const;
    /// Around the time that the list is dropped down.
    void beginDrop();
    void endDrop() { m_dropped.end(); }

private:
    LRESULT ask(UINT message, int index, LPARAM parameter = 0) const;

    HWND m_combo = nullptr;
    HWND m_list = nullptr;
    DropList m_dropped;
};

}  // namespace knav
