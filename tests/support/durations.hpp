#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>

namespace kelmar::test {

using std::chrono::milliseconds;

/// The shortest that `took` returns, of up to 20 times that it is called, until one is below
/// `limit`: that others are busy makes any of them longer, and none shorter.
template <class Took>
milliseconds shortestOf(milliseconds limit, const Took& took) {
    milliseconds shortest = took();
    for (int tries = 1; tries < 20 && shortest >= limit; ++tries) {
        shortest = std::min(shortest, took());
    }
    return shortest;
}

/// How long it takes, for `shortestOf`.
template <class Action>
milliseconds timeOf(const Action& action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - start);
}

/// The time for which it keeps processors busy, on all threads of this process: for work without
/// waits. Others who are busy have no part in it.
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
