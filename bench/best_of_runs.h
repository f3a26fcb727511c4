// Timing for the programs of the Windows build, where Google Benchmark is not
// available: the best of several runs of a piece of work, by a steady clock.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>

namespace bench {

// Milliseconds of the fastest of runs runs of work.
inline double bestMs(int runs, const std::function<void()>& work) {
    double best = 1e300;
    for (int r = 0; r < runs; ++r) {
        const auto t0 = std::chrono::steady_clock::now();
        work();
        const auto t1 = std::chrono::steady_clock::now();
        best = std::min(best, std::chrono::duration<double, std::milli>(t1 - t0).count());
    }
    return best;
}

} // namespace bench
