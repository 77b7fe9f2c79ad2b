// Turns a crash of a test program into a failing exit code with a stack.
#pragma once

namespace knav::test {

/// Exit codes of a program that was ended: by an unhandled fault, by the watchdog.
inline constexpr unsigned kFaultExit = 99;
inline constexpr unsigned kHangExit = 98;

/// From now on an unhandled fault, an uncaught exception and a stop at undefined behaviour (also one inside a guarded
/// call) print code, address and stack and end the process with kFaultExit.
void installFaultReport() noexcept;

}  // namespace knav::test
