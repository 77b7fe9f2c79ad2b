// Ends a test that hangs, and says where it hangs.
#pragma once

#include <gtest/gtest.h>

#include <platform/Windows.h>

#include <atomic>
#include <thread>

namespace knav::test {

/// Watches the thread that made it. When one test takes longer than the limit, prints the test's name and the stack of
/// that thread and ends the process with kHangExit. Install with UnitTest::listeners().Append(new Watchdog(limit)).
class Watchdog : public testing::EmptyTestEventListener {
public:
    explicit Watchdog(DWORD limitMs);
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
    ~Watchdog() override;

private:
    void OnTestStart(const testing::TestInfo& test) override;
    void OnTestEnd(const testing::TestInfo& test) override;
    void watch() noexcept;
    void reportHang() const noexcept;

    const DWORD m_limitMs;
    HANDLE m_watched = nullptr;
    HANDLE m_stop = nullptr;
    std::atomic<ULONGLONG> m_startedAt{0};  // 0: no test is running
    std::atomic<const testing::TestInfo*> m_test{nullptr};
    std::thread m_watcher;
};

}  // namespace knav::test
