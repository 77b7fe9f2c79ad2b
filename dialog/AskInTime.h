// A question that may go unanswered for long, without holding the dialog.
#pragma once

#include <ry/RyBackground.h>

#include <functional>
#include <memory>
#include <optional>

#include "dialog/PaintingWait.h"
#include "dialog/ResourceModule.h"
#include "shell/ScopedHandle.h"

namespace knav {

/// What `ask` returned on a worker thread; nothing when it took longer than `limit` milliseconds, or failed. It may
/// still be running then, so it must own what it uses. The calling thread's windows paint themselves meanwhile.
template <class Answer>
std::optional<Answer> askInTime(std::function<Answer()> ask, unsigned limit) {
    // Whoever leaves last frees it. The worker writes, sets the event, and writes no more.
    struct Question {
        const ScopedHandle done{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
        std::optional<Answer> answer;
    };
    const auto question = std::make_shared<Question>();
    const bool started = ryRunInBackground(libraryModule(), [question, ask = std::move(ask)] {
        try {
            question->answer = ask();
        } catch (...) {  // as good as no answer
        }
        SetEvent(question->done.get());
    });
    if (!started || !waitWhilePainting(question->done.get(), limit)) {
        return std::nullopt;
    }
    return std::move(question->answer);
}

}  // namespace knav
