// Work that may block for long, away from the user-interface thread.
#pragma once

#include <functional>

#include <platform/Windows.h>
#include <platform/export.h>

/// Starts `work` on a thread of the system's pool. `module`, the one that the code of `work` is in, stays loaded until
/// it has returned; what it throws is lost. Nobody waits for it: give it what it needs, owned. False when no thread
/// could be had, or no memory: `work` is then destroyed without having run. Any thread.
ZOUI_API bool ryRunInBackground(HINSTANCE module, std::function<void()> work) noexcept;
