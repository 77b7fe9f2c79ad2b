// The folders shown before, for the Back command.
#pragma once

#include <deque>

#include "shell/ItemList.h"

namespace knav {

/// Most recent first; the head is the folder shown now. The oldest are forgotten.
class BackHistory {
public:
    /// Puts a folder at the head, unless it is there already.
    void add(ITEMIDLIST* folder);
    bool canGoBack() const { return m_folders.size() > 1; }
    /// The folder shown before this one; null when there is none.
    ItemList previous() const;
    /// The folder shown before this one was shown again, and so was added again.
    void wentBack();
    /// The folder shown before this one cannot be shown any more.
    void forgetPrevious();
    void clear() { m_folders.clear(); }

private:
    std::deque<ItemList> m_folders;  // a null list is the desktop
};

}  // namespace knav
