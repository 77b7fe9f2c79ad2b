#include "support/MemoryShortage.h"

#include <platform/Windows.h>

#include <cstdlib>
#include <new>

namespace {

constexpr int kNever = -1;

DWORD g_thread = 0;
int g_untilFailure = kNever;

bool failsNow() noexcept {
    if (g_untilFailure == kNever || GetCurrentThreadId() != g_thread) {
        return false;
    }
    return g_untilFailure-- == 0;
}

}  // namespace

// The array forms and those that do not throw go through these two.
void* operator new(std::size_t size) {
    void* const block = failsNow() ? nullptr : std::malloc(size != 0 ? size : 1);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

int knav::test::withEachAllocationFailing(const std::function<void()>& body) {
    g_thread = GetCurrentThreadId();
    for (int passed = 0;; ++passed) {
        g_untilFailure = passed;
        body();
        const bool failed = g_untilFailure == kNever;
        g_untilFailure = kNever;
        if (!failed) {
            return passed;
        }
    }
}
