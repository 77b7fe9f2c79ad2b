// The fault guard: runs one call into an object that is not ours and turns whatever goes wrong inside it into failure.
#pragma once

#include <platform/Windows.h>

#include <type_traits>
#include <utility>

namespace knav {

/// How a guarded body ended.
enum class GuardOutcome {
    Completed,    ///< it returned
    OutOfMemory,  ///< it threw std::bad_alloc
    Thrown,       ///< it threw any other C++ exception of this compiler
    Faulted,      ///< a structured exception: access violation, division by zero, another compiler's exception ...
};

/// Calls `body(context)` and reports how it ended. Costs about two nanoseconds; works again and again, nested too.
/// A stack overflow, a breakpoint and the debugger's own notifications pass through: they are not failures of a call.
GuardOutcome runGuarded(void (*body)(void*), void* context) noexcept;

/// Runs `body`, which returns nothing; true when it completed.
///
/// After a fault the frames between the fault and the guard are dropped without running their destructors (there is no
/// exception object that could unwind them). So keep a body to the one foreign call: arguments are made before it,
/// results are stored through pointers to scoped owners outside it.
template <class Body>
bool guardedRun(Body&& body) noexcept {
    auto* const pointer = &body;
    const auto call = [](void* context) { static_cast<void>((**static_cast<decltype(&pointer)>(context))()); };
    return runGuarded(call, const_cast<void*>(static_cast<const void*>(&pointer))) == GuardOutcome::Completed;
}

/// Runs `body`, which returns an HRESULT, and passes its answer on; E_OUTOFMEMORY or E_UNEXPECTED when it did not
/// return. The same limits as for guardedRun().
template <class Body>
HRESULT guarded(Body&& body) noexcept {
    struct Frame {
        std::remove_reference_t<Body>* body;
        HRESULT result;
    } frame{&body, E_UNEXPECTED};
    const auto call = [](void* context) {
        auto* const self = static_cast<Frame*>(context);
        self->result = (*self->body)();
    };
    switch (runGuarded(call, &frame)) {
        case GuardOutcome::Completed:
            return frame.result;
        case GuardOutcome::OutOfMemory:
            return E_OUTOFMEMORY;
        default:
            return E_UNEXPECTED;
    }
}

/// Runs `body`, which returns a plain value, and passes it on; `failure` when it did not return.
template <class Value, class Body>
Value guardedOr(Value failure, Body&& body) noexcept {
    static_assert(std::is_trivially_copyable_v<Value>, "an owner would leak: hand it out through a pointer instead");
    Value value = failure;
    return guardedRun([&value, &body] { value = body(); }) ? value : failure;
}

/// Runs `body`, which returns a truth value; false when it did not return.
template <class Body>
bool guardedTrue(Body&& body) noexcept {
    return guardedOr(false, [&body] { return static_cast<bool>(body()); });
}

}  // namespace knav
