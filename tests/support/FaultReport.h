// Turns the crash of a test program, or its hang, into a failing exit code with a stack.
#pragma once

#include <platform/Windows.h>

namespace knav::test {

/// Exit codes of a program that was ended: by an unhandled fault, by the watchdog.
inline constexpr unsigned kFaultExit = 99;
inline constexpr unsigned kHangExit = 98;

/// From now on an unhandled fault, an uncaught exception and a stop at undefined behaviour (also one inside a guarded
/// call) print code, address and stack and end the process with kFaultExit.
void installFaultReport() noexcept;

/// Prints where another thread is and ends the process with kHangExit.
void endAsHung(HANDLE thread) noexcept;

/// Formats and writes to standard error without using the heap; cut at 1,000 characters.
[[gnu::format(printf, 1, 2)]] void printRaw(const char* format, ...) noexcept;

}  // namespace knav::test
