// An owned item identifier list.
#pragma once

#include <knav/CNavShell.h>
#include <knav/NavItemList.h>

#include <memory>

namespace knav {

/// The item-list functions take plain pointers but change nothing behind them; this is how to pass a constant list.
inline ITEMIDLIST* listArgument(const ITEMIDLIST* list) noexcept {
    return const_cast<ITEMIDLIST*>(list);
}

/// Owns a list of the shell's task allocator. Taking over a list and copying one have different names, so that neither
/// is done by accident.
class ItemList {
public:
    ItemList() noexcept = default;

    /// Takes over the caller's list, or null.
    static ItemList adopt(ITEMIDLIST* list) noexcept { return ItemList(list); }

    /// A copy; null for null or when memory is short.
    static ItemList copyOf(const ITEMIDLIST* list) noexcept {
        return ItemList(CNavShell().CopyItemList(listArgument(list)));
    }

    /// The elements of `first`, then those of `second`; either may be null.
    static ItemList join(const ITEMIDLIST* first, const ITEMIDLIST* second) noexcept {
        ITEMIDLIST* parts[] = {listArgument(first), listArgument(second)};
        return ItemList(NavBuildItemList(CNavShell(), parts, 2));
    }

    /// The first element of `list` alone; null when there is none.
    static ItemList firstOf(const ITEMIDLIST* list) noexcept {
        return ItemList(CNavShell().ExtractItem(listArgument(list)));
    }

    /// `list` without its last element; null when nothing would be left.
    static ItemList parentOf(const ITEMIDLIST* list) noexcept {
        return ItemList(NavBuildParentList(CNavShell(), listArgument(list)));
    }

    ITEMIDLIST* get() const noexcept { return m_list.get(); }
    explicit operator bool() const noexcept { return m_list != nullptr; }

    /// Gives the list to the caller.
    ITEMIDLIST* release() noexcept { return m_list.release(); }

    /// Frees what is held and takes over `list`.
    void reset(ITEMIDLIST* list = nullptr) noexcept { m_list.reset(list); }

private:
    explicit ItemList(ITEMIDLIST* list) noexcept : m_list(list) {}

    struct Free {
        void operator()(ITEMIDLIST* list) const noexcept { NavFreeItemList(list); }
    };
    std::unique_ptr<ITEMIDLIST, Free> m_list;
};

}  // namespace knav
