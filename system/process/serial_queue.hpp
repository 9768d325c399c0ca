#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace kelmar {

/// A thread that runs one job at a time: a repeating one on its timer, and others while their
/// callers wait. What only its jobs touch needs no lock of its own. Where the system starts no
/// thread, there is no timer, and `sync` runs its job on the caller's.
class SerialQueue {
public:
    using Job = std::function<void()>;

    /// `label` names the thread for people who look at the process.
    explicit SerialQueue(std::string label);
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;
    /// Ends the timer and waits for a job that runs.
    ~SerialQueue();

    /// Runs `job` at once and then every `period`, until `cancelTimer`. One timer at a time.
    void startTimer(std::chrono::milliseconds period, Job job);

    /// After this no further run of the timer's job begins. May be called from any thread, jobs
    /// included.
    void cancelTimer();

    /// Runs `job` on the queue, after the one that may be running, and returns when it has ended.
    /// Not from a job of the same queue.
    void sync(const Job& job);

private:
    void work();

    std::string label_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::chrono::milliseconds period_{};
    Job timerJob_;
    std::chrono::steady_clock::time_point next_;
    const Job* waiting_ = nullptr;
    bool ending_ = false;
    std::thread thread_; ///< last, so that everything it uses is there before it starts
};

} // namespace kelmar
