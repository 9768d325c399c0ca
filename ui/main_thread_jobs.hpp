#pragma once

#include "ui/dispatcher.hpp"

#include <atomic>
#include <chrono>
#include <deque>

namespace kelmar {

/// The jobs that wait for the main thread, in the order in which they were posted. Posting takes no
/// lock. The event loop that runs them is the toolkit's: it is to give them a turn whenever `post`
/// or `runTurn` asks for one. Made before any job, and there as long as any.
class MainThreadJobs {
public:
    MainThreadJobs() = default;
    MainThreadJobs(const MainThreadJobs&) = delete;
    MainThreadJobs& operator=(const MainThreadJobs&) = delete;
    ~MainThreadJobs();

    /// What one turn of the event loop gives to jobs: a quarter of the time between two pictures.
    static constexpr std::chrono::milliseconds share{4};

    /// From any thread. Whether a turn is to be asked for; while one is on its way, it is not.
    [[nodiscard]] bool post(Dispatcher::Job job);

    /// On the main thread. Runs jobs for as long as `share` allows, at least one; whether another
    /// turn is to be asked for. The event loop draws and answers in between.
    [[nodiscard]] bool runTurn();

private:
    struct Posted {
        Dispatcher::Job job;
        Posted* earlier;
    };

    void takePosted();

    std::atomic<Posted*> posted_{nullptr}; ///< the latest first
    std::atomic<bool> asked_{false};       ///< a turn is on its way
    std::deque<Dispatcher::Job> waiting_;  ///< for the main thread alone, the earliest first
};

} // namespace kelmar
