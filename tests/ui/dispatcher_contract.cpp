#include "tests/ui/dispatcher_contract.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

namespace kelmar::test {

TEST_P(DispatcherContract, RunsJobsOnTheMainThreadInTheOrderOfPosting) {
    std::vector<int> order;
    bool elsewhere = false;
    const auto self = std::this_thread::get_id();
    std::thread poster([&] {
        for (int number = 0; number < 10'000; ++number) {
            dispatcher->toMain([&, number] {
                order.push_back(number);
                elsewhere = elsewhere || std::this_thread::get_id() != self;
            });
        }
    });
    EXPECT_TRUE(eventually([&] { return order.size() == 10'000; }));
    poster.join();
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_FALSE(elsewhere);
}

TEST_P(DispatcherContract, RunsNoJobBeforeItReturns) {
    bool ran = false;
    dispatcher->toMain([&] { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_TRUE(eventually([&] { return ran; }));
}

TEST_P(DispatcherContract, RunsAJobThatAJobPosts) {
    int depth = 0;
    dispatcher->toMain([&] {
        ++depth;
        dispatcher->toMain([&] { ++depth; });
    });
    EXPECT_TRUE(eventually([&] { return depth == 2; }));
}

TEST_P(DispatcherContract, LosesNothingOfManyThreads) {
    constexpr int each = 20'000;
    int count = 0;
    std::array<std::thread, 4> posters;
    for (std::thread& poster : posters) {
        poster = std::thread([&] {
            for (int number = 0; number < each; ++number) {
                dispatcher->toMain([&] { ++count; });
            }
        });
    }
    EXPECT_TRUE(eventually([&] { return count == 4 * each; }));
    for (std::thread& poster : posters) {
        poster.join();
    }
}

TEST_P(DispatcherContract, RunsBackgroundJobsBesideEachOther) {
    std::atomic<int> meeting{0};
    std::atomic<int> met{0};
    const auto meet = [&] {
        ++meeting;
        for (int wait = 0; wait < 30'000 && meeting != 2; ++wait) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        met += meeting == 2 ? 1 : 0;
    };
    dispatcher->userInitiated(meet);
    dispatcher->userInitiated(meet);
    EXPECT_TRUE(eventually([&] { return met == 2; }));
}

/// A job's objects go with the job, whatever thread it ran on.
TEST_P(DispatcherContract, LetsGoOfWhatAJobHolds) {
    auto held = std::make_shared<int>(0);
    dispatcher->toMain([held] {});
    dispatcher->userInitiated([held] {});
    dispatcher->utility([held] {});
    EXPECT_TRUE(eventually([&] { return held.use_count() == 1; }));
}

} // namespace kelmar::test
