// The edge of exported functions: memory may run out inside, but nothing is thrown at a host.
#pragma once

#include <utility>

namespace knav {

/// The result of `body`, or `onThrow` when it threw.
template <class Result, class Body>
Result atApiEdge(Result onThrow, Body&& body) noexcept {
    try {
        return std::forward<Body>(body)();
    } catch (...) {
        return onThrow;
    }
}

/// Runs `body`; whatever it throws ends it.
template <class Body>
void atApiEdge(Body&& body) noexcept {
    try {
        std::forward<Body>(body)();
    } catch (...) {  // the operation is left undone
    }
}

}  // namespace knav
