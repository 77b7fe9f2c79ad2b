#include "support/StackTrace.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

constexpr int kMaxFrames = 64;

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
    knav::test::printRaw("  #%-2d %s+0x%llx (0x%llx)\n", number, name, address - base, address);
}

// One frame up; false at the end of the stack.
bool unwind(CONTEXT& context) noexcept {
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
    return context.Rip != 0;
}

}  // namespace

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

void knav::test::printStack(CONTEXT context) noexcept {
    for (int number = 0; number < kMaxFrames; ++number) {
        printFrame(number, context.Rip);
        if (!unwind(context)) {
            break;
        }
    }
}
