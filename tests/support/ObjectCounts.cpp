#include "support/ObjectCounts.h"

#include <winternl.h>

#include <cstddef>
#include <ostream>
#include <vector>

#include "support/AllocationSpy.h"

namespace {

// GetGuiResources and GetProcessHandleCount are not there everywhere the tests run; the tables behind them are.

// The table of GDI objects that every process maps: an entry is in use when its type is not 0.
struct GdiEntry {
    UINT64 object;
    DWORD owner;
    WORD unique;
    WORD type;
    UINT64 userData;
};
static_assert(sizeof(GdiEntry) == 24 && offsetof(GdiEntry, type) == 14);
constexpr std::size_t kGdiTableInPeb = 0xF8;
constexpr int kGdiEntries = 0x4000;

int gdiObjects() noexcept {
    const auto* const peb = reinterpret_cast<const char*>(NtCurrentTeb()->ProcessEnvironmentBlock);
    const auto* const table = *reinterpret_cast<const GdiEntry* const*>(peb + kGdiTableInPeb);
    return static_cast<int>(
        std::count_if(table, table + kGdiEntries, [](const GdiEntry& entry) { return entry.type != 0; }));
}

struct HandleEntry {
    ULONG owner;
    BYTE type;
    BYTE flags;
    USHORT handle;
    void* object;
    ULONG access;
};
struct HandleTable {
    ULONG count;
    HandleEntry entries[1];
};
constexpr auto kSystemHandles = static_cast<SYSTEM_INFORMATION_CLASS>(16);

int kernelHandles() {
    std::vector<char> buffer(256 * 1024);
    ULONG needed = 0;
    while (NtQuerySystemInformation(kSystemHandles, buffer.data(), static_cast<ULONG>(buffer.size()), &needed) != 0) {
        buffer.resize(buffer.size() * 2);
    }
    const auto* const table = reinterpret_cast<const HandleTable*>(buffer.data());
    const DWORD self = GetCurrentProcessId();
    return static_cast<int>(std::count_if(table->entries, table->entries + table->count,
                                          [self](const HandleEntry& entry) { return entry.owner == self; }));
}

int threadWindows() noexcept {
    int count = 0;
    const auto add = [](HWND, LPARAM counter) -> BOOL {
        ++*reinterpret_cast<int*>(counter);
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&count));
    return count;
}

}  // namespace

knav::test::ObjectCounts knav::test::ObjectCounts::now() {
    return {AllocationSpy::live(), gdiObjects(), threadWindows(), kernelHandles()};
}

knav::test::ObjectCounts knav::test::ObjectCounts::operator-(const ObjectCounts& earlier) const noexcept {
    return {taskBlocks - earlier.taskBlocks, gdi - earlier.gdi, windows - earlier.windows, handles - earlier.handles};
}

std::ostream& knav::test::operator<<(std::ostream& out, const ObjectCounts& counts) {
    return out << counts.taskBlocks << " task blocks, " << counts.gdi << " GDI objects, " << counts.windows
               << " windows, " << counts.handles << " handles";
}
