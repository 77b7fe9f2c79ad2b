// Whether a whole test program gives its task memory back.
#pragma once

#include <gtest/gtest.h>

#include <platform/Windows.h>

namespace knav::test {

/// Compares the live blocks of task memory at the end of each repetition (--gtest_repeat) with those of the one before.
/// The first one fills the system's caches and counts for nothing.
class LevelCheck final : public testing::EmptyTestEventListener {
public:
    /// `grew` is set when a repetition leaves more than the one before.
    explicit LevelCheck(bool& grew) : m_grew(grew) {}

private:
    void OnTestIterationEnd(const testing::UnitTest& tests, int iteration) override;

    bool& m_grew;
    LONG m_level = 0;
};

}  // namespace knav::test
