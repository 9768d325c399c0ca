#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace kelmar::test {

/// Acts as an ordinary user who causes races: exchanges each of these pairs of paths and exchanges
/// them back, one pair after another, as fast as one thread can. Each exchange is atomic
/// (renameat2(2)), so both paths always exist.
class Swapper {
public:
    using Pair = std::pair<std::string, std::string>;

    explicit Swapper(std::vector<Pair> pairs);
    Swapper(const Swapper&) = delete;
    Swapper& operator=(const Swapper&) = delete;
    ~Swapper();

    /// The number of exchanges so far.
    [[nodiscard]] long swaps() const { return swaps_; }

private:
    std::vector<Pair> pairs_;
    std::atomic<bool> isEnough_{false};
    std::atomic<long> swaps_{0};
    std::thread thread_;
};

/// How often to repeat a race: 20 times, or as the environment variable KELMAR_RACES says.
int races();

} // namespace kelmar::test
