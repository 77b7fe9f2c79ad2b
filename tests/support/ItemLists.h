// Item identifier lists in tests: making them byte by byte, comparing and showing them.
#pragma once

#include <gmock/gmock.h>

#include <cstring>
#include <string>
#include <vector>

#include "shell/ItemList.h"
#include "shell/ItemListDebug.h"
#include "shell/ListWalk.h"
#include "support/AllocationSpy.h"
#include "support/MemoryEnd.h"
#include "support/Printers.h"

namespace knav {

// Found by argument-dependent lookup.
inline void PrintTo(const ItemList& list, std::ostream* out) {
    *out << test::utf8(describe(list.get()));
}

}  // namespace knav

namespace knav::test {

/// The bytes of a list whose elements have these payloads, with its terminator.
inline std::vector<BYTE> listBytes(const std::vector<std::string_view>& payloads) {
    std::vector<BYTE> bytes;
    for (const std::string_view payload : payloads) {
        const auto size = static_cast<USHORT>(payload.size() + sizeof(USHORT));
        bytes.push_back(static_cast<BYTE>(size & 0xFF));
        bytes.push_back(static_cast<BYTE>(size >> 8));
        bytes.insert(bytes.end(), payload.begin(), payload.end());
    }
    bytes.insert(bytes.end(), {0, 0});
    return bytes;
}

inline ITEMIDLIST* asList(std::vector<BYTE>& bytes) {
    return reinterpret_cast<ITEMIDLIST*>(bytes.data());
}

/// An owned list made of payloads.
inline ItemList makeList(const std::vector<std::string_view>& payloads) {
    std::vector<BYTE> bytes = listBytes(payloads);
    return ItemList::copyOf(asList(bytes));
}

inline std::vector<BYTE> bytesOf(const ITEMIDLIST* list) {
    const auto* const begin = reinterpret_cast<const BYTE*>(list);
    return list == nullptr ? std::vector<BYTE>() : std::vector<BYTE>(begin, begin + measureList(list).bytes + 2);
}

/// The argument (ITEMIDLIST* or ItemList) holds the same bytes as `expected`.
MATCHER_P(HoldsSameBytes, expected, "is " + utf8(describe(expected))) {
    *result_listener << utf8(describe(arg));
    return (arg == nullptr) == (expected == nullptr) && bytesOf(arg) == bytesOf(expected);
}

/// Runs `body` twice, since the system fills caches the first time, and expects that the second run leaves nothing.
template <class Body>
void expectNoTaskMemoryLeft(Body&& body) {
    body();
    const LONG before = AllocationSpy::live();
    body();
    EXPECT_EQ(AllocationSpy::live(), before);
}

/// A list whose bytes end where no memory is.
class PageEnd {
public:
    ITEMIDLIST* put(const BYTE* bytes, std::size_t count) {
        return reinterpret_cast<ITEMIDLIST*>(m_memory.put(bytes, count));
    }

private:
    MemoryEnd m_memory;
};

}  // namespace knav::test
