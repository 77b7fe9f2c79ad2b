#include "view/ArrivalFilter.h"

#include "shell/ComPtr.h"
#include "shell/ListWalk.h"
#include "view/BrowserState.h"

#include <knav/CNavCommDlgBrowser.h>
#include <knav/CNavListCtrl.h>

#include <algorithm>
#include <utility>

namespace knav {
namespace {

ItemList itemAt(IFolderView* view, int index) {
    PITEMID_CHILD item = nullptr;
    const HRESULT result = guarded([&] { return view->Item(index, &item); });
    return ItemList::adopt(SUCCEEDED(result) ? item : nullptr);
}

}  // namespace

void ArrivalFilter::restart() {
    m_expected = 0;
    m_arrived.clear();
}

void ArrivalFilter::decided(bool shown) {
    m_expected += shown ? 1 : 0;
}

void ArrivalFilter::inserted(int index) {
    if (m_expected > 0) {
        --m_expected;
        return;
    }
    const auto view = m_browser.state().view.as<IFolderView>();
    if (auto item = view ? itemAt(view.get(), index) : ItemList()) {
        m_arrived.push_back(std::move(item));
        m_checkLater.post();
    }
}

void ArrivalFilter::check() {
    auto items = std::exchange(m_arrived, {});
    std::erase_if(items, [this](const ItemList& item) { return m_browser.IsAllowed(item.get()) != 0; });
    if (!items.empty()) {
        removeRows(items);
    }
}

void ArrivalFilter::removeRows(const std::vector<ItemList>& items) {
    const auto view = m_browser.state().view.as<IFolderView>();
    const HWND list = SafeHwnd(m_browser.GetListCtrl());
    if (!view || list == nullptr) {
        return;
    }
    for (int row = ListView_GetItemCount(list) - 1; row >= 0; --row) {
        const auto shown = itemAt(view.get(), row);
        if (std::ranges::any_of(items,
                                [&shown](const ItemList& item) { return areSameBytes(item.get(), shown.get()); })) {
            ListView_DeleteItem(list, row);
        }
    }
}

}  // namespace knav
