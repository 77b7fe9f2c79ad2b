#include "shell/ListWalk.h"

#include <cstring>

#include "shell/Guard.h"

namespace {

// Volatile, so that the read happens where it stands: the guard's state before it is then what a fault leaves behind.
int readSize(const ITEMIDLIST* list) {
    return static_cast<const volatile ITEMIDLIST*>(list)->mkid.cb;
}

const ITEMIDLIST* advance(const ITEMIDLIST* list, int size) {
    return reinterpret_cast<const ITEMIDLIST*>(reinterpret_cast<const BYTE*>(list) + size);
}

}  // namespace

namespace knav {

ListMeasure measureList(const ITEMIDLIST* list) noexcept {
    ListMeasure measure;
    if (list == nullptr) {
        return measure;
    }
    volatile ListMeasure* const found = &measure;
    guardedRun([list, found] {
        int count = 0;
        std::size_t bytes = 0;
        const ITEMIDLIST* element = list;
        while (const int size = readSize(element)) {
            bytes += static_cast<std::size_t>(size);
            found->count = ++count;
            found->bytes = bytes;
            found->last = element;
            if (size < static_cast<int>(sizeof(USHORT))) {
                found->torn = true;
            }
            element = advance(element, size);
        }
        found->terminated = true;
    });
    return measure;
}

bool isWhole(const ITEMIDLIST* list) noexcept {
    const ListMeasure measure = measureList(list);
    return list == nullptr || (measure.terminated && !measure.torn);
}

int elementSize(const ITEMIDLIST* list) noexcept {
    return list != nullptr ? guardedOr(0, [list] { return readSize(list); }) : 0;
}

const ITEMIDLIST* nextElement(const ITEMIDLIST* list) noexcept {
    if (list == nullptr) {
        return nullptr;
    }
    return guardedOr<const ITEMIDLIST*>(nullptr, [list]() -> const ITEMIDLIST* {
        const int size = readSize(list);
        const ITEMIDLIST* const next = size > 0 ? advance(list, size) : nullptr;
        return next != nullptr && readSize(next) > 0 ? next : nullptr;
    });
}

bool areSameBytes(const ITEMIDLIST* a, const ITEMIDLIST* b) noexcept {
    const ListMeasure first = measureList(a);
    const ListMeasure second = measureList(b);
    return first.terminated && second.terminated && first.bytes == second.bytes &&
           guardedTrue([&] { return std::memcmp(a, b, first.bytes) == 0; });
}

bool copyListBytes(void* to, const void* from, std::size_t bytes) noexcept {
    return bytes == 0 || guardedRun([=] { std::memcpy(to, from, bytes); });
}

}  // namespace knav
