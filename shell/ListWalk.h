// Walking the bytes of item identifier lists that may come from anywhere.
#pragma once

#include <platform/Windows.h>

#include <cstddef>

namespace knav {

/// What one walk over a list finds.
struct ListMeasure {
    int count = 0;                     ///< elements
    std::size_t bytes = 0;             ///< of all elements, without the terminator
    const ITEMIDLIST* last = nullptr;  ///< the last element; null when there is none
    bool terminated = false;           ///< the walk ended at a terminator, not at memory that cannot be read
    bool torn = false;                 ///< an element is smaller than its count, which lies half in what follows it
};

/// Walks the whole list under one guard. Memory that cannot be read ends the list as a terminator would.
ListMeasure measureList(const ITEMIDLIST* list) noexcept;

/// `list` is null or can be read up to its terminator and not torn. The system's folders do not expect anything else: a
/// fault in them may leave their locks taken and their memory lost, so what they are given is looked at before.
bool isWhole(const ITEMIDLIST* list) noexcept;

/// The bytes of the first element, its count included; 0 when there is none or it cannot be read.
int elementSize(const ITEMIDLIST* list) noexcept;

/// The list from the second element on; null when there is none.
const ITEMIDLIST* nextElement(const ITEMIDLIST* list) noexcept;

/// The lists hold the same bytes. False when one is null or cannot be read up to its terminator.
bool areSameBytes(const ITEMIDLIST* a, const ITEMIDLIST* b) noexcept;

/// Copies bytes that may not be readable; false when they are not.
bool copyListBytes(void* to, const void* from, std::size_t bytes) noexcept;

}  // namespace knav
