#include <knav/NavItemList.h>

#include <knav/CNavShell.h>

#include <limits>

#include "shell/ListWalk.h"

namespace {

constexpr std::size_t kTerminator = sizeof(USHORT);
constexpr std::size_t kMostBytes = std::numeric_limits<int>::max() - kTerminator;

// A block for `bytes` of elements with its terminator written; null when it cannot be had.
BYTE* allocateList(IMalloc* allocator, std::size_t bytes) {
    if (allocator == nullptr || bytes > kMostBytes) {
        return nullptr;
    }
    auto* const block = static_cast<BYTE*>(allocator->Alloc(bytes + kTerminator));
    if (block != nullptr) {
        block[bytes] = block[bytes + 1] = 0;
    }
    return block;
}

// The allocator's block as a list, or nothing left of it when its bytes could not be copied.
ITEMIDLIST* finishList(IMalloc* allocator, BYTE* block, bool copied) {
    if (block != nullptr && !copied) {
        allocator->Free(block);
        return nullptr;
    }
    return reinterpret_cast<ITEMIDLIST*>(block);
}

// A new list of the first `bytes` bytes of `list`, which are whole elements.
ITEMIDLIST* copyLeading(IMalloc* allocator, const ITEMIDLIST* list, std::size_t bytes) {
    BYTE* const block = allocateList(allocator, bytes);
    return finishList(allocator, block, block != nullptr && knav::copyListBytes(block, list, bytes));
}

// Copies the elements of every list behind one another into `room` bytes. A list that grew since it was measured does
// not fit: the rest stays zero.
bool copyElements(BYTE* to, std::size_t room, ITEMIDLIST* const* lists, int count) {
    for (int index = 0; index < count; ++index) {
        const std::size_t bytes = knav::measureList(lists[index]).bytes;
        if (bytes > room) {
            break;
        }
        if (!knav::copyListBytes(to, lists[index], bytes)) {
            return false;
        }
        to += bytes;
        room -= bytes;
    }
    ZeroMemory(to, room);
    return true;
}

}  // namespace

int NavGetItemElementSize(ITEMIDLIST* list) {
    return knav::elementSize(list);
}

ITEMIDLIST* NavGetNextItemElement(ITEMIDLIST* list) {
    return const_cast<ITEMIDLIST*>(knav::nextElement(list));
}

ITEMIDLIST* NavExtractItemElement(IMalloc* allocator, ITEMIDLIST* list) {
    const int size = knav::elementSize(list);
    return size > 0 ? copyLeading(allocator, list, static_cast<std::size_t>(size)) : nullptr;
}

ITEMIDLIST* NavBuildItemList(IMalloc* allocator, ITEMIDLIST** lists, int count) {
    if (allocator == nullptr || lists == nullptr || count < 1) {
        return nullptr;
    }
    if (count == 1) {  // one walk less for the common copy
        return lists[0] != nullptr ? copyLeading(allocator, lists[0], knav::measureList(lists[0]).bytes) : nullptr;
    }
    std::size_t total = 0;
    bool anyList = false;
    for (int index = 0; index < count; ++index) {
        const knav::ListMeasure measure = knav::measureList(lists[index]);
        if (measure.torn) {  // the next list would become part of its last count
            return nullptr;
        }
        total += measure.bytes;
        anyList = anyList || lists[index] != nullptr;
    }
    if (!anyList) {
        return nullptr;
    }
    BYTE* const block = allocateList(allocator, total);
    return finishList(allocator, block, block != nullptr && copyElements(block, total, lists, count));
}

ITEMIDLIST* NavBuildParentList(IMalloc* allocator, ITEMIDLIST* list) {
    const knav::ListMeasure measure = knav::measureList(list);
    if (measure.count < 2) {
        return nullptr;
    }
    const auto* const begin = reinterpret_cast<const BYTE*>(list);
    const auto bytes = static_cast<std::size_t>(reinterpret_cast<const BYTE*>(measure.last) - begin);
    return copyLeading(allocator, list, bytes);
}

ITEMIDLIST* NavCopyItemList(IMalloc* allocator, ITEMIDLIST* list) {
    return list != nullptr ? NavBuildItemList(allocator, &list, 1) : nullptr;
}

int NavIsItemListQualified(ITEMIDLIST* list) {
    return knav::measureList(list).count > 1;
}

void NavFreeItemList(ITEMIDLIST*& list) {
    if (list != nullptr) {
        CNavShell().FreeItemList(list);
    }
}
