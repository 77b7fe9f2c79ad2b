#include "support/LevelCheck.h"

#include <cstdio>

#include "support/AllocationSpy.h"

void knav::test::LevelCheck::OnTestIterationEnd(const testing::UnitTest& /*tests*/, int iteration) {
    const LONG live = AllocationSpy::live();
    if (iteration > 0 && live > m_level) {
        std::printf("repetition %d left %ld blocks of task memory\n", iteration + 1, live - m_level);
        m_grew = true;
    }
    m_level = live;
}
