#include "support/Watchdog.h"

#include "support/FaultReport.h"

knav::test::Watchdog::Watchdog(DWORD limitMs) : m_limitMs(limitMs) {
    const HANDLE process = GetCurrentProcess();
    DuplicateHandle(process, GetCurrentThread(), process, &m_watched, 0, FALSE, DUPLICATE_SAME_ACCESS);
}

void knav::test::Watchdog::OnTestStart(const testing::TestInfo& test) {
    m_test = &test;
    CreateTimerQueueTimer(&m_timer, nullptr, &reportHang, this, m_limitMs, 0, WT_EXECUTEONLYONCE);
}

void knav::test::Watchdog::OnTestEnd(const testing::TestInfo& /*test*/) {
    DeleteTimerQueueTimer(nullptr, m_timer, INVALID_HANDLE_VALUE);
}

void CALLBACK knav::test::Watchdog::reportHang(void* watchdog, BOOLEAN) noexcept {
    const auto& self = *static_cast<const Watchdog*>(watchdog);
    printRaw("%s.%s is not finished after %lu ms; its thread is at\n", self.m_test->test_suite_name(),
             self.m_test->name(), self.m_limitMs);
    endAsHung(self.m_watched);
}
