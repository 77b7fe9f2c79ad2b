// Memory that ends where no memory is, so that reading behind what was put there faults.
#pragma once

#include <platform/Windows.h>

#include <cstddef>
#include <cstring>

namespace knav::test {

class MemoryEnd {
public:
    MemoryEnd() : m_pages(static_cast<BYTE*>(VirtualAlloc(nullptr, kRoom + kGap, MEM_RESERVE, PAGE_NOACCESS))) {
        VirtualAlloc(m_pages, kRoom, MEM_COMMIT, PAGE_READWRITE);
    }
    MemoryEnd(const MemoryEnd&) = delete;
    MemoryEnd& operator=(const MemoryEnd&) = delete;
    ~MemoryEnd() { VirtualFree(m_pages, 0, MEM_RELEASE); }

    /// Copies `count` elements of at most 64 KB so that they end with the memory; what was there before is lost.
    template <class Element>
    Element* put(const Element* elements, std::size_t count) {
        BYTE* const begin = m_pages + kRoom - count * sizeof(Element);
        if (count > 0) {
            std::memcpy(begin, elements, count * sizeof(Element));
        }
        return reinterpret_cast<Element*>(begin);
    }

private:
    static constexpr std::size_t kRoom = 0x10000;
    static constexpr std::size_t kGap = 0x1000;
    BYTE* m_pages;
};

}  // namespace knav::test
