// Tests that need a process of their own, because something is decided once when a process starts.
#pragma once

#include <platform/CString.h>

namespace knav::test {

/// True in a process that runChildTests started. A test for such a process skips itself elsewhere.
bool isChildProcess();

/// Runs the tests of that filter, all of them, in a process of `program` (a test program), with its output going where
/// this one's goes. Returns its exit code; 0 when all passed.
DWORD runChildTests(const CString& program, const char* filter);

/// The full path of this program.
CString thisProgram();

}  // namespace knav::test
