// Lets memory run out at every place where the library asks for some.
#pragma once

#include <functional>

namespace knav::test {

/// Calls `body` again and again. The first time its first allocation fails, then its second, and so on until none is
/// left to fail. Returns how many failed. An allocation is a use of operator new by this thread in the test program.
int withEachAllocationFailing(const std::function<void()>& body);

}  // namespace knav::test
