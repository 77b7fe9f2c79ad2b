// Items that reach the list without the view having asked whether they may be shown.
#pragma once

#include "shell/ItemList.h"
#include "view/DeferredCall.h"

#include <vector>

class CNavCommDlgBrowser;

namespace knav {

/// Some shells ask ICommDlgBrowser::IncludeObject when they fill a view, but not when a change notification brings a
/// new item. Such an item is recognised by having no decision before it, and taken out again if it may not be shown.
class ArrivalFilter {
public:
    explicit ArrivalFilter(CNavCommDlgBrowser& browser) : m_browser(browser), m_checkLater([this] { check(); }) {}

    /// A new list has been taken over.
    void restart();
    /// The view was told whether an item may be shown.
    void decided(bool shown);
    /// The list got a row at `index`.
    void inserted(int index);

private:
    void check();
    void removeRows(const std::vector<ItemList>& items);

    CNavCommDlgBrowser& m_browser;
    DeferredCall m_checkLater;  // not inside the insertion: the view is still at work on the row
    std::vector<ItemList> m_arrived;
    int m_expected = 0;
};

}  // namespace knav
