#include "support/FaultReport.h"

#include <cstring>
#include <exception>

#include <platform/Windows.h>

#include "support/StackTrace.h"

namespace {

using knav::test::kFaultExit;
using knav::test::printRaw;
using knav::test::printStack;

// Kept free on the stack, so that an overflow can still be reported.
constexpr ULONG kReserve = 64 * 1024;

[[noreturn]] void end() noexcept {
    TerminateProcess(GetCurrentProcess(), kFaultExit);
    std::abort();
}

LONG WINAPI reportFault(EXCEPTION_POINTERS* fault) {
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    printRaw("unhandled fault 0x%08lx at %p", record.ExceptionCode, record.ExceptionAddress);
    if (record.ExceptionCode == STATUS_ACCESS_VIOLATION && record.NumberParameters >= 2) {
        printRaw(", %s %p", record.ExceptionInformation[0] != 0 ? "writing" : "reading",
                 reinterpret_cast<void*>(record.ExceptionInformation[1]));
    }
    printRaw("\n");
    printStack(*fault->ContextRecord);
    end();
}

// The trap of a checked build: reported at once, because the library's own guard would take it for a foreign fault.
LONG WINAPI reportTrap(EXCEPTION_POINTERS* fault) {
    return fault->ExceptionRecord->ExceptionCode == STATUS_ILLEGAL_INSTRUCTION ? reportFault(fault)
                                                                               : EXCEPTION_CONTINUE_SEARCH;
}

[[noreturn]] void reportUncaught() {
    printRaw("uncaught exception or a throw out of a function that must not throw\n");
    CONTEXT here{};
    RtlCaptureContext(&here);
    printStack(here);
    end();
}

}  // namespace

void knav::test::installFaultReport() noexcept {
    ULONG reserve = kReserve;
    SetThreadStackGuarantee(&reserve);
    SetUnhandledExceptionFilter(&reportFault);
    AddVectoredExceptionHandler(1, &reportTrap);
    std::set_terminate(&reportUncaught);
}
