// How much private memory a stretch of work needs at most.
#pragma once

#include <atomic>
#include <cstddef>
#include <thread>

namespace bench {

/// Private bytes of the process.
std::size_t privateBytes();

/// Samples the private bytes, from a thread of its own, as long as it lives.
class PeakMemory {
public:
    PeakMemory();
    PeakMemory(const PeakMemory&) = delete;
    PeakMemory& operator=(const PeakMemory&) = delete;
    ~PeakMemory();

    /// The largest sample so far.
    std::size_t peak();

private:
    void sample();

    std::atomic<std::size_t> m_peak;
    std::atomic<bool> m_stop{false};
    std::thread m_sampler;
};

}  // namespace bench
