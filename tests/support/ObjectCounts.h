// What the process holds of the system's objects.
#pragma once

#include <platform/Windows.h>

#include <iosfwd>

namespace knav::test {

struct ObjectCounts {
    LONG taskBlocks = 0;  ///< blocks of the task allocator (see AllocationSpy)
    int gdi = 0;          ///< device contexts, bitmaps, brushes, fonts, pens, regions
    int windows = 0;      ///< top-level windows of this thread
    int handles = 0;      ///< kernel handles of this process

    static ObjectCounts now();
    bool operator==(const ObjectCounts&) const = default;
    ObjectCounts operator-(const ObjectCounts& earlier) const noexcept;
};

std::ostream& operator<<(std::ostream& out, const ObjectCounts& counts);

/// Runs `action` some times to fill what is kept on purpose (caches, classes), then `rounds` times more, and returns
/// what the latter added. All members are 0 when nothing leaks. What the system happens to make late shows once; a leak
/// shows whenever it is looked for, so growth counts only when it is there three times over.
template <class Action>
ObjectCounts growthOver(int rounds, Action&& action) {
    constexpr int kWarmUps = 3;
    constexpr int kLooks = 3;
    for (int i = 0; i < kWarmUps; ++i) {
        action();
    }
    ObjectCounts growth;
    for (int look = 0; look < kLooks; ++look) {
        const ObjectCounts before = ObjectCounts::now();
        for (int i = 0; i < rounds; ++i) {
            action();
        }
        growth = ObjectCounts::now() - before;
        if (growth == ObjectCounts{}) {
            break;
        }
    }
    return growth;
}

}  // namespace knav::test
