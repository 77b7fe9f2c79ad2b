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
    void of(HWND combo) const;

    int count() const;
    /// Inserts at `index`; the item's index, or a negative number. Without strings the list keeps `data` only.
    int insert(int index, const wchar_t* text, void* data) const;
    /// Null for a wrong index.
    void* data(int index) const;
    bool text(int index, CString& text) const;
    /// Around the time that the list is dropped down.
    void beginDrop() const;
    void endDrop() const { m_dropped.UnsubclassWindow(); }
    bool hasStrings() const { return m_hasStrings; }

private:
    mutable HWND m_combo = nullptr;
    mutable HWND m_list = nullptr;
    mutable bool m_hasStrings = false;
    mutable DropList m_dropped;
};

}  // namespace knav
