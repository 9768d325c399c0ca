#pragma once

#include "ui/dispatcher.hpp"

#include <cstddef>
#include <deque>
#include <mutex>
#include <utility>

namespace kelmar::test {

/// Keeps jobs until a test runs them, in any order, on the test's own thread.
class ManualDispatcher : public Dispatcher {
public:
    void toMain(Job job) override { add(main, std::move(job)); }

    void userInitiated(Job job) override { add(initiated, std::move(job)); }

    void utility(Job job) override { add(later, std::move(job)); }

    /// Takes the job at `index` out of `jobs` and runs it; jobs that it posts wait.
    void runOne(std::deque<Job>& jobs, std::size_t index = 0) {
        Job job;
        {
            const std::scoped_lock lock(mutex_);
            const auto place = jobs.begin() + static_cast<std::ptrdiff_t>(index);
            job = std::move(*place);
            jobs.erase(place);
        }
        job();
    }

    /// Runs the jobs in `jobs` in order, including those that they add.
    void runAll(std::deque<Job>& jobs) {
        while (!jobs.empty()) {
            runOne(jobs);
        }
    }

    /// Runs all jobs until none are left.
    void settle() {
        while (!main.empty() || !initiated.empty() || !later.empty()) {
            runAll(main);
            runAll(initiated);
            runAll(main);
            runAll(later);
        }
    }

    std::deque<Job> main;
    std::deque<Job> initiated;
    std::deque<Job> later;

private:
    void add(std::deque<Job>& jobs, Job job) {
        // The engine may post from the thread that follows the administrator's script.
        const std::scoped_lock lock(mutex_);
        jobs.push_back(std::move(job));
    }

    std::mutex mutex_;
};

} // namespace kelmar::test
