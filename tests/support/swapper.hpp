#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace kelmar::test {

/// An ordinary user at work: lets each of these pairs of paths change places and back again, one
/// pair after another, as fast as one thread can. Each change is one step (renameat2(2)), so that
/// there is always something at either path.
class Swapper {
public:
    using Pair = std::pair<std::string, std::string>;

    explicit Swapper(std::vector<Pair> pairs);
    Swapper(const Swapper&) = delete;
    Swapper& operator=(const Swapper&) = delete;
    ~Swapper();

    /// How often two paths have changed places.
    [[nodiscard]] long swaps() const { return swaps_; }

private:
    std::vector<Pair> pairs_;
    std::atomic<bool> isEnough_{false};
    std::atomic<long> swaps_{0};
    std::thread thread_;
};

/// How often a race is run: 20 times, or as the environment variable KELMAR_RACES says.
int races();

} // namespace kelmar::test
