#include "shell/Guard.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <stdexcept>

namespace {

using knav::guarded;
using knav::guardedOr;
using knav::guardedRun;
using knav::guardedTrue;

volatile int g_zero = 0;
volatile int g_sink = 1;

constexpr std::uintptr_t kNowhere = 16;  // not null, which a checked build would report before the processor does

int writeNowhere() {
    *reinterpret_cast<volatile int*>(kNowhere) = 1;
    return 3;
}

__attribute__((no_sanitize("undefined"))) void divideByZero() {
    g_sink = g_sink / g_zero;
}

void throwOtherCompilersException() {
    RaiseException(0xE06D7363, 0, 0, nullptr);
}

void catchItself() {
    try {
        throw 1;
    } catch (int) {
    }
}

TEST(Guard, EachWayToEndABodyHasItsAnswer) {
    struct Row {
        const char* why;
        void (*body)();
        HRESULT expected;
    };
    const Row rows[] = {
        {"nothing happens", [] {}, S_FALSE},
        {"access violation", [] { writeNowhere(); }, E_UNEXPECTED},
        {"division by zero", divideByZero, E_UNEXPECTED},
        {"int thrown", [] { throw 1; }, E_UNEXPECTED},
        {"std::exception thrown", [] { throw std::runtime_error("x"); }, E_UNEXPECTED},
        {"memory ran out", [] { throw std::bad_alloc(); }, E_OUTOFMEMORY},
        {"another compiler's exception", throwOtherCompilersException, E_UNEXPECTED},
        {"debugger text is no failure", [] { OutputDebugStringA("knav"); }, S_FALSE},
        {"the body's own handler comes first", catchItself, S_FALSE},
    };
    for (const Row& row : rows) {
        const HRESULT result = guarded([&row] {
            row.body();
            return S_FALSE;
        });
        EXPECT_EQ(result, row.expected) << row.why;
    }
    EXPECT_EQ(guarded([] { return E_ACCESSDENIED; }), E_ACCESSDENIED);
    EXPECT_EQ(guardedOr(7, [] { return 3; }), 3);
    EXPECT_EQ(guardedOr(7, writeNowhere), 7);
    EXPECT_TRUE(guardedTrue([] { return 5; }));
    EXPECT_FALSE(guardedTrue(writeNowhere));
}

TEST(Guard, ThrownExceptionRunsDestructorsOfTheBody) {
    int ended = 0;
    struct Ended {
        int& count;
        ~Ended() { ++count; }
    };
    guarded([&]() -> HRESULT {
        const Ended object{ended};
        throw 1;
    });
    EXPECT_EQ(ended, 1);
}

TEST(Guard, FaultInANestedGuardEndsOnlyTheInnerBody) {
    bool inner = true;
    bool wentOn = false;
    EXPECT_FALSE(guardedRun([&] {
        inner = guardedRun(writeNowhere);
        wentOn = true;
        writeNowhere();
    }));
    EXPECT_FALSE(inner);
    EXPECT_TRUE(wentOn);
}

TEST(Guard, LocalsOfTheCallerSurviveAFaultAgainAndAgain) {
    // The guard must give back every register that a caller may keep values in.
    int a = g_sink, b = a + 1, c = b + 1, d = c + 1, e = d + 1, f = e + 1, g = f + 1;
    double x = a * 0.5, y = b * 0.5;
    int caught = 0;
    for (int index = 0; index < 100'000; ++index) {
        caught += guardedRun(writeNowhere) ? 0 : 1;
    }
    EXPECT_EQ(caught, 100'000);
    EXPECT_EQ(b + c + d + e + f + g, 6 * a + 21);
    EXPECT_EQ(x + y, a * 0.5 + b * 0.5);
}

TEST(GuardDeathTest, StackOverflowIsNotTaken) {
    EXPECT_EXIT(
        guardedRun([] { RaiseException(STATUS_STACK_OVERFLOW, 0, 0, nullptr); }), [](int code) { return code != 0; },
        "");
}

}  // namespace
