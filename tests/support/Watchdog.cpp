#include "support/Watchdog.h"

#include "support/FaultReport.h"
#include "support/StackTrace.h"

namespace {

constexpr DWORD kPollMs = 200;
constexpr DWORD kReportLimitMs = 5000;

// The suspended thread may hold a lock that printing its stack needs.
DWORD WINAPI endAnyway(void*) {
    Sleep(kReportLimitMs);
    TerminateProcess(GetCurrentProcess(), knav::test::kHangExit);
    return 0;
}

}  // namespace

knav::test::Watchdog::Watchdog(DWORD limitMs) : m_limitMs(limitMs) {
    const HANDLE process = GetCurrentProcess();
    DuplicateHandle(process, GetCurrentThread(), process, &m_watched, 0, FALSE, DUPLICATE_SAME_ACCESS);
    m_stop = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    m_watcher = std::thread([this] { watch(); });
}

knav::test::Watchdog::~Watchdog() {
    SetEvent(m_stop);
    m_watcher.join();
    CloseHandle(m_stop);
    CloseHandle(m_watched);
}

void knav::test::Watchdog::OnTestStart(const testing::TestInfo& test) {
    m_test = &test;
    m_startedAt = GetTickCount64();
}

void knav::test::Watchdog::OnTestEnd(const testing::TestInfo& /*test*/) {
    m_startedAt = 0;
}

void knav::test::Watchdog::watch() noexcept {
    while (WaitForSingleObject(m_stop, kPollMs) == WAIT_TIMEOUT) {
        const ULONGLONG startedAt = m_startedAt;
        if (startedAt != 0 && GetTickCount64() - startedAt > m_limitMs) {
            reportHang();
        }
    }
}

void knav::test::Watchdog::reportHang() const noexcept {
    const testing::TestInfo* const test = m_test;
    printRaw("%s.%s is not finished after %lu ms; its thread is at\n", test->test_suite_name(), test->name(),
             m_limitMs);
    CreateThread(nullptr, 0, &endAnyway, nullptr, 0, nullptr);
    SuspendThread(m_watched);
    CONTEXT context{};
    context.ContextFlags = CONTEXT_FULL;
    if (GetThreadContext(m_watched, &context)) {
        printStack(context);
    }
    TerminateProcess(GetCurrentProcess(), kHangExit);
}
