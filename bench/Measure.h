// Timing for the benchmarks: several rounds, the two sides of a comparison in turn, medians.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace bench {

inline void figure(const char* name, double value, const char* unit) {
    std::printf("figure %s %.4g %s\n", name, value, unit);
}

/// A ratio with the value it should stay at or below.
inline void ratio(const char* name, double value, double goal) {
    std::printf("ratio %s %.3f goal %.2f\n", name, value, goal);
}

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Nanoseconds of one run of `body`, which repeats its work `repeats` times.
template <class Body>
double nanoseconds(Body& body, int repeats) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < repeats; ++i) {
        body();
    }
    const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
    return spent.count() / repeats;
}

/// Median nanoseconds of one run.
template <class Body>
double measure(Body body, int repeats, int rounds = 15) {
    std::vector<double> times;
    nanoseconds(body, repeats / 4 + 1);
    for (int i = 0; i < rounds; ++i) {
        times.push_back(nanoseconds(body, repeats));
    }
    return median(times);
}

struct Comparison {
    double ours;
    double bare;
    double ratio;  ///< median of the ratios of neighbouring rounds, so that a drifting machine does not matter
};

template <class Ours, class Bare>
Comparison compare(Ours ours, Bare bare, int repeats, int rounds = 25) {
    std::vector<double> ourTimes;
    std::vector<double> bareTimes;
    std::vector<double> ratios;
    nanoseconds(ours, repeats / 4 + 1);
    nanoseconds(bare, repeats / 4 + 1);
    for (int i = 0; i < rounds; ++i) {
        ourTimes.push_back(nanoseconds(ours, repeats));
        bareTimes.push_back(nanoseconds(bare, repeats));
        ratios.push_back(ourTimes.back() / bareTimes.back());
    }
    return {median(ourTimes), median(bareTimes), median(ratios)};
}

}  // namespace bench
