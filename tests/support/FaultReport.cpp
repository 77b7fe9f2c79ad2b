#include "support/FaultReport.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <exception>

namespace {

using knav::test::kFaultExit;
using knav::test::kHangExit;
using knav::test::printRaw;

// Kept free on the stack, so that an overflow can still be reported.
constexpr ULONG kReserve = 64 * 1024;
constexpr int kMaxFrames = 64;

// Module and offset of a frame, for addr2line.
void printFrame(int number, DWORD64 address) noexcept {
    MEMORY_BASIC_INFORMATION region{};
    char path[MAX_PATH] = "?";
    DWORD64 base = 0;
    if (VirtualQuery(reinterpret_cast<void*>(address), &region, sizeof region) != 0 && region.Type == MEM_IMAGE) {
        base = reinterpret_cast<DWORD64>(region.AllocationBase);
        GetModuleFileNameA(static_cast<HMODULE>(region.AllocationBase), path, MAX_PATH);
    }
    const char* const lastSeparator = std::strrchr(path, '\\');
    const char* const name = lastSeparator != nullptr ? lastSeparator + 1 : path;
    printRaw("  #%-2d %s+0x%llx (0x%llx)\n", number, name, address - base, address);
}

// One frame up; to address 0 at the end of the stack.
void unwind(CONTEXT& context) noexcept {
    DWORD64 base = 0;
    RUNTIME_FUNCTION* const function = RtlLookupFunctionEntry(context.Rip, &base, nullptr);
    if (function == nullptr) {  // a leaf, or a jump into nowhere: the return address is on top
        context.Rip = *reinterpret_cast<DWORD64*>(context.Rsp);
        context.Rsp += sizeof(DWORD64);
    } else {
        void* handlerData = nullptr;
        DWORD64 frame = 0;
        RtlVirtualUnwind(UNW_FLAG_NHANDLER, base, context.Rip, function, &context, &handlerData, &frame, nullptr);
    }
}

[[noreturn]] void endWithStack(CONTEXT context, unsigned code) noexcept {
    for (int number = 0; number < kMaxFrames && context.Rip != 0; ++number) {
        printFrame(number, context.Rip);
        unwind(context);
    }
    TerminateProcess(GetCurrentProcess(), code);
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
    endWithStack(*fault->ContextRecord, kFaultExit);
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
    endWithStack(here, kFaultExit);
}

// A suspended thread may hold a lock that printing its stack needs.
DWORD WINAPI endAnyway(void*) {
    constexpr DWORD kReportLimitMs = 5000;
    Sleep(kReportLimitMs);
    TerminateProcess(GetCurrentProcess(), kHangExit);
    return 0;
}

}  // namespace

void knav::test::installFaultReport() noexcept {
    ULONG reserve = kReserve;
    SetThreadStackGuarantee(&reserve);
    SetUnhandledExceptionFilter(&reportFault);
    AddVectoredExceptionHandler(1, &reportTrap);
    std::set_terminate(&reportUncaught);
}

void knav::test::endAsHung(HANDLE thread) noexcept {
    CreateThread(nullptr, 0, &endAnyway, nullptr, 0, nullptr);
    SuspendThread(thread);
    CONTEXT context{};
    context.ContextFlags = CONTEXT_FULL;
    GetThreadContext(thread, &context);
    endWithStack(context, kHangExit);
}

void knav::test::printRaw(const char* format, ...) noexcept {
    char text[1000];
    va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    if (length > 0) {
        DWORD written = 0;
        const DWORD count = std::min<DWORD>(static_cast<DWORD>(length), sizeof text - 1);
        WriteFile(GetStdHandle(STD_ERROR_HANDLE), text, count, &written, nullptr);
    }
}
