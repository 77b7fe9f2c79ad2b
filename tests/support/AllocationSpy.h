// Counts the live blocks of the task allocator: item id lists, COM strings, what the shell hands out.
#pragma once

#include <platform/Windows.h>

namespace knav::test {

class AllocationSpy {
public:
    /// Installs the spy for the whole process; once, before the first allocation that shall be counted. It stays.
    static void install() noexcept;
    /// Blocks allocated since then and not freed yet.
    static LONG live() noexcept;
};

}  // namespace knav::test
