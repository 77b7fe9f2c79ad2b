#include "shell/Guard.h"

#include <new>

namespace {

constexpr DWORD kSevereBits = 0xC0000000;

// Decides, before anything is unwound, whether the guard takes an exception.
LONG takesException(EXCEPTION_POINTERS* exception, void* /*frame*/) noexcept {
    const DWORD code = exception->ExceptionRecord->ExceptionCode;
    if (code == STATUS_STACK_OVERFLOW) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    const bool severe = (code & kSevereBits) == kSevereBits;
    const bool warningFault = code == STATUS_GUARD_PAGE_VIOLATION || code == STATUS_DATATYPE_MISALIGNMENT;
    return severe || warningFault ? EXCEPTION_EXECUTE_HANDLER : EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

extern "C" {
LONG knavGuardFilter(EXCEPTION_POINTERS* exception, void* frame) {
    return takesException(exception, frame);
}

// Calls `body(context)`; nonzero when it returned, 0 when the filter took an exception.
int knavGuardFrame(void* context, void (*body)(void*));
}

// GCC has no structured exception handling, but its assembler can describe a frame that has: one scope around one
// call, with a filter and a landing place, run by the C run-time's own language handler. The return address must lie
// inside the scope, hence the no-operation behind the call.
asm(R"(
    .text
    .p2align 4
    .globl  knavGuardFrame
    .def    knavGuardFrame; .scl 2; .type 32; .endef
    .seh_proc knavGuardFrame
knavGuardFrame:
    subq    $40, %rsp
    .seh_stackalloc 40
    .seh_endprologue
.LknavGuardBegin:
    call    *%rdx
    nop
.LknavGuardEnd:
    movl    $1, %eax
    addq    $40, %rsp
    ret
.LknavGuardLanding:
    xorl    %eax, %eax
    addq    $40, %rsp
    ret
    .seh_handler __C_specific_handler, @except
    .seh_handlerdata
    .long   1
    .rva    .LknavGuardBegin, .LknavGuardEnd, knavGuardFilter, .LknavGuardLanding
    .text
    .seh_endproc
)");

// C++ exceptions are left to the compiler's own handlers: they pass the frame above and unwind what they cross.
knav::GuardOutcome knav::runGuarded(void (*body)(void*), void* context) noexcept {
    try {
        return knavGuardFrame(context, body) != 0 ? GuardOutcome::Completed : GuardOutcome::Faulted;
    } catch (const std::bad_alloc&) {
        return GuardOutcome::OutOfMemory;
    } catch (...) {
        return GuardOutcome::Thrown;
    }
}
