#pragma once

#include "ui/dispatcher.hpp"

#include <atomic>
#include <chrono>
#include <deque>

namespace kelmar {

/// A queue of jobs for the main thread, in the order of posting. Posting is lock-free. The
/// toolkit's event loop runs them: it must call `runTurn` whenever `post` or `runTurn` requests a
/// turn. Must outlive all jobs.
class MainThreadJobs {
public:
    MainThreadJobs() = default;
    MainThreadJobs(const MainThreadJobs&) = delete;
    MainThreadJobs& operator=(const MainThreadJobs&) = delete;
    ~MainThreadJobs();

    /// Time budget of one turn: a quarter of a frame.
    static constexpr std::chrono::milliseconds share{4};

    /// Adds a job; may be called from any thread. Returns true if the caller must schedule a turn;
    /// false if one is already pending.
    [[nodiscard]] bool post(Dispatcher::Job job);

    /// Call on the main thread. Runs at least one job, and more until `share` has passed. Returns
    /// true if the caller must schedule another turn; the event loop draws and handles input in
    /// between.
    [[nodiscard]] bool runTurn();

private:
    struct Posted {
        Dispatcher::Job job;
        Posted* earlier;
    };

    void takePosted();

    std::atomic<Posted*> posted_{nullptr}; ///< a stack, the latest first
    std::atomic<bool> asked_{false};       ///< a turn is pending
    std::deque<Dispatcher::Job> waiting_;  ///< main thread only, the earliest first
};

} // namespace kelmar
