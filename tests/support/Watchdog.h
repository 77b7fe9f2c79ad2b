// Ends a test that hangs, and says where it hangs.
#pragma once

#include <gtest/gtest.h>

#include <platform/Windows.h>

namespace knav::test {

/// Watches the thread that made it. When one test takes longer than the limit, prints the test's name and the stack of
/// that thread and ends the process with kHangExit. Install with UnitTest::listeners().Append(new Watchdog(limit)).
class Watchdog : public testing::EmptyTestEventListener {
public:
    explicit Watchdog(DWORD limitMs);

private:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
    static void CALLBACK reportHang(void* watchdog, BOOLEAN timedOut) noexcept;

    const DWORD m_limitMs;
    HANDLE m_watched = nullptr;
    HANDLE m_timer = nullptr;
    const testing::TestInfo* m_test = nullptr;
};

}  // namespace knav::test
