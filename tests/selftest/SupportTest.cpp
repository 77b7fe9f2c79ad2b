// The checks that the other tests rely on must be able to fail.
#include <gmock/gmock.h>

#include "support/FaultReport.h"
#include "support/LevelCheck.h"
#include "support/ObjectCounts.h"
#include "support/Printers.h"
#include "support/RegistryRedirect.h"

using knav::test::ObjectCounts;
using knav::test::RegistryRedirect;

TEST(ObjectCounts, EachKindOfLeakIsSeenAndEndsWhenFreed) {
    const ObjectCounts before = ObjectCounts::now();
    void* const block = CoTaskMemAlloc(8);
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    const ObjectCounts grown = ObjectCounts::now() - before;
    CoTaskMemFree(block);
    DeleteObject(brush);
    CloseHandle(event);

    EXPECT_EQ(grown.taskBlocks, 1);
    EXPECT_EQ(grown.gdi, 1);
    EXPECT_EQ(grown.handles, 1);
    EXPECT_EQ(ObjectCounts::now() - before, ObjectCounts{});
}

TEST(LevelCheck, SeesWhatARepetitionLeavesBehind) {
    bool grew = false;
    knav::test::LevelCheck check(grew);
    testing::TestEventListener& listener = check;
    const testing::UnitTest& tests = *testing::UnitTest::GetInstance();
    void* const cached = CoTaskMemAlloc(8);
    listener.OnTestIterationEnd(tests, 0);
    listener.OnTestIterationEnd(tests, 1);
    EXPECT_FALSE(grew) << "the first one may keep what it likes";
    void* const lost = CoTaskMemAlloc(8);
    listener.OnTestIterationEnd(tests, 2);
    EXPECT_TRUE(grew);
    CoTaskMemFree(lost);
    CoTaskMemFree(cached);
}

TEST(RegistryRedirect, KeepsValuesFromTheRealKeyAndFromTheNextRedirect) {
    const wchar_t key[] = L"Software\\KnavSelfTest";
    const auto isStored = [&] {
        return RegGetValueW(HKEY_CURRENT_USER, key, L"Value", RRF_RT_DWORD, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
    };
    {
        RegistryRedirect redirect;
        redirect.set(key, L"Value", 1);
        EXPECT_TRUE(isStored());
    }
    EXPECT_FALSE(isStored());
    RegDeleteTreeW(HKEY_CURRENT_USER, key);  // so that a failure does not outlast this run
    const RegistryRedirect next;
    EXPECT_FALSE(isStored());
}

TEST(FaultReport, FaultEndsTheProgramWithItsCodeAndAStack) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    // Not null, which a checked build would report before the processor does.
    int* volatile nowhere = reinterpret_cast<int*>(std::uintptr_t{16});
    EXPECT_EXIT(*nowhere = 1, testing::ExitedWithCode(knav::test::kFaultExit),
                testing::AllOf(testing::HasSubstr("unhandled fault 0xc0000005"),
                               testing::HasSubstr("#0  test_selftest")));
    EXPECT_EXIT(std::terminate(), testing::ExitedWithCode(knav::test::kFaultExit), "uncaught exception");
}
