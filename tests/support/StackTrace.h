// Prints where a thread is: module and offset of each frame, for addr2line.
#pragma once

#include <platform/Windows.h>

namespace knav::test {

/// Writes to standard error without using the heap. The thread of `context` is the caller or is suspended.
void printStack(CONTEXT context) noexcept;

/// Formats and writes to standard error without using the heap; cut at 1,000 characters.
[[gnu::format(printf, 1, 2)]] void printRaw(const char* format, ...) noexcept;

}  // namespace knav::test
