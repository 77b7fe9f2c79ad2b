// Work that may block for long, away from the user-interface thread.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include <platform/ScopedHandle.h>
#include <platform/Windows.h>
#include <platform/export.h>

/// Starts `work` on a thread of the system's pool. `module`, the one that the code of `work` is in, stays loaded until
/// it has returned; what it throws is lost. Nobody waits for it: give it what it needs, owned. False when no thread
/// could be had, or no memory: `work` is then destroyed without having run. Any thread.
ZOUI_API bool ryRunInBackground(HINSTANCE module, std::function<void()> work) noexcept;

/// Waits for an event, at most `limit` milliseconds, while the thread's windows paint themselves and take messages sent
/// by other threads. Keys and mouse clicks stay where they are. True when the event was set in time.
ZOUI_API bool ryWaitWhilePainting(HANDLE event, DWORD limit);

/// What `ask` returned on a thread of the pool; nothing when it took longer than `limit` milliseconds, or failed. It
/// may still be running then, so it must own what it uses. `module` is the one that the code of `ask` is in. The
/// calling thread's windows paint themselves meanwhile.
template <class Answer>
std::optional<Answer> ryAskInTime(HINSTANCE module, std::function<Answer()> ask, DWORD limit) {
    // Whoever leaves last frees it. The worker writes, sets the event, and writes no more.
    struct Question {
        const ScopedHandle done{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
        std::optional<Answer> answer;
    };
    const auto question = std::make_shared<Question>();
    const bool started = ryRunInBackground(module, [question, ask = std::move(ask)] {
        try {
            question->answer = ask();
        } catch (...) {  // as good as no answer
        }
        SetEvent(question->done.get());
    });
    if (!started || !ryWaitWhilePainting(question->done.get(), limit)) {
        return std::nullopt;
    }
    return std::move(question->answer);
}
