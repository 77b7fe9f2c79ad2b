#include "bench/open/PeakMemory.h"

#include <platform/Windows.h>

#include <psapi.h>

#include <algorithm>
#include <chrono>

std::size_t bench::privateBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

bench::PeakMemory::PeakMemory() : m_peak(privateBytes()) {
    m_sampler = std::thread([this] {
        while (!m_stop) {
            sample();
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    });
}

bench::PeakMemory::~PeakMemory() {
    m_stop = true;
    m_sampler.join();
}

std::size_t bench::PeakMemory::peak() {
    sample();
    return m_peak;
}

void bench::PeakMemory::sample() {
    const std::size_t now = privateBytes();
    std::size_t before = m_peak;
    while (now > before && !m_peak.compare_exchange_weak(before, now)) {
    }
}
