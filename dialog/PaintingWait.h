// Waiting on the user-interface thread.
#pragma once

#include <platform/Windows.h>

namespace knav {

/// Waits for an event, at most `limit` milliseconds, while the thread's windows paint themselves and take messages sent
/// by other threads. Keys and mouse clicks stay where they are. True when the event was set in time.
bool waitWhilePainting(HANDLE event, unsigned limit);

}  // namespace knav
