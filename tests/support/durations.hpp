#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>

namespace kelmar::test {

using std::chrono::milliseconds;

/// Calls `took` up to 20 times, until a result is below `limit`, and returns the shortest. Load on
/// the machine makes results longer, never shorter.
template <class Took>
milliseconds shortestOf(milliseconds limit, const Took& took) {
    milliseconds shortest = took();
    for (int tries = 1; tries < 20 && shortest >= limit; ++tries) {
        shortest = std::min(shortest, took());
    }
    return shortest;
}

/// The elapsed time of `action`, for `shortestOf`.
template <class Action>
milliseconds timeOf(const Action& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - start);
}

/// The processor time of `action`, over all threads of this process: for work without waits. Load
/// from other processes does not count.
template <class Action>
milliseconds workOf(const Action& action) {
    const auto worked = [] {
        timespec time{};
        ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    };
    const auto start = worked();
    action();
    return std::chrono::duration_cast<milliseconds>(worked() - start);
}

} // namespace kelmar::test
