// Entry of every test program.
#include <gmock/gmock.h>

#include <platform/Windows.h>

#include <cstdlib>

#include "support/AllocationSpy.h"
#include "support/ChildTests.h"
#include "support/FaultReport.h"
#include "support/LevelCheck.h"
#include "support/Watchdog.h"

// Switches off the automation library's cache of strings, whose blocks would look like leaks. Not in its header.
extern "C" void WINAPI SetOaNoCache();

namespace {

constexpr DWORD kDefaultLimitMs = 60'000;

// KNAV_TEST_LIMIT: seconds for one test; 0 while debugging.
DWORD testLimitMs() {
    const char* const seconds = std::getenv("KNAV_TEST_LIMIT");
    return seconds == nullptr ? kDefaultLimitMs : static_cast<DWORD>(std::strtoul(seconds, nullptr, 10)) * 1000;
}

}  // namespace

int main(int argc, char** argv) {
    knav::test::installFaultReport();
    knav::test::AllocationSpy::install();
    SetOaNoCache();
    if (knav::test::isChildProcess()) {  // it runs all that it was asked for, not a share of it
        _putenv("GTEST_TOTAL_SHARDS=");
        _putenv("GTEST_SHARD_INDEX=");
    }
    testing::InitGoogleMock(&argc, argv);
    if (const DWORD limit = testLimitMs(); limit != 0) {
        testing::UnitTest::GetInstance()->listeners().Append(new knav::test::Watchdog(limit));
    }
    bool grew = false;
    testing::UnitTest::GetInstance()->listeners().Append(new knav::test::LevelCheck(grew));
    const HRESULT ole = OleInitialize(nullptr);
    const int result = RUN_ALL_TESTS();
    if (SUCCEEDED(ole)) {
        OleUninitialize();
    }
    return grew ? 1 : result;
}
