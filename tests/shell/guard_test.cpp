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

void writeNowhere() {
    *reinterpret_cast<volatile int*>(kNowhere) = 1;
}

__attribute__((no_sanitize("undefined"))) void divideByZero() {
    g_sink = g_sink / g_zero;
}

struct Row {
    const char* why;
    HRESULT (*body)();
    HRESULT expected;
};

constexpr DWORD kOtherCompilersException = 0xE06D7363;

const Row kRows[] = {
    {"an answer passes through", [] { return HRESULT{S_FALSE}; }, S_FALSE},
    {"a failure passes through", [] { return HRESULT{E_ACCESSDENIED}; }, E_ACCESSDENIED},
    {"access violation",
     [] {
         writeNowhere();
         return HRESULT{S_OK};
     },
     E_UNEXPECTED},
    {"division by zero",
     [] {
         divideByZero();
         return HRESULT{S_OK};
     },
     E_UNEXPECTED},
    {"int thrown", []() -> HRESULT { throw 1; }, E_UNEXPECTED},
    {"std::exception thrown", []() -> HRESULT { throw std::runtime_error("x"); }, E_UNEXPECTED},
    {"memory ran out", []() -> HRESULT { throw std::bad_alloc(); }, E_OUTOFMEMORY},
    {"another compiler's exception",
     [] {
         RaiseException(kOtherCompilersException, 0, 0, nullptr);
         return HRESULT{S_OK};
     },
     E_UNEXPECTED},
    {"debugger text is no failure",
     [] {
         OutputDebugStringA("knav");
         return HRESULT{S_OK};
     },
     S_OK},
    {"the body's own handler comes first",
     [] {
         try {
             throw 1;
         } catch (int) {
             return HRESULT{S_FALSE};
         }
     },
     S_FALSE},
};

TEST(Guard, EachWayToEndABodyHasItsAnswer) {
    for (const Row& row : kRows) {
        EXPECT_EQ(guarded(row.body), row.expected) << row.why;
    }
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
    HRESULT inner = S_OK;
    bool wentOn = false;
    const HRESULT outer = guarded([&] {
        inner = guarded(kRows[2].body);
        wentOn = true;
        writeNowhere();
        return HRESULT{S_OK};
    });
    EXPECT_EQ(inner, E_UNEXPECTED);
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(outer, E_UNEXPECTED);
}

TEST(Guard, LocalsOfTheCallerSurviveAFault) {
    // The guard must give back every register that a caller may keep values in.
    int a = g_sink, b = a + 1, c = b + 1, d = c + 1, e = d + 1, f = e + 1, g = f + 1;
    double x = a * 0.5, y = b * 0.5;
    EXPECT_FALSE(guardedRun(writeNowhere));
    EXPECT_EQ(b + c + d + e + f + g, 6 * a + 21);
    EXPECT_EQ(x + y, a * 0.5 + b * 0.5);
}

TEST(Guard, WorksAgainAndAgain) {
    int caught = 0;
    for (int index = 0; index < 100'000; ++index) {
        caught += guardedRun(writeNowhere) ? 0 : 1;
    }
    EXPECT_EQ(caught, 100'000);
}

TEST(Guard, OtherFormsHaveTheirFailureValue) {
    EXPECT_EQ(guardedOr(7, [] { return 3; }), 3);
    EXPECT_EQ(guardedOr(7,
                        [] {
                            writeNowhere();
                            return 3;
                        }),
              7);
    EXPECT_TRUE(guardedTrue([] { return 5; }));
    EXPECT_FALSE(guardedTrue([] {
        writeNowhere();
        return true;
    }));
}

TEST(GuardDeathTest, StackOverflowIsNotTaken) {
    EXPECT_EXIT(
        guardedRun([] { RaiseException(STATUS_STACK_OVERFLOW, 0, 0, nullptr); }), [](int code) { return code != 0; },
        "");
}

}  // namespace
