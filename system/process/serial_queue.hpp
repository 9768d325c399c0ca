#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace kelmar {

/// A thread that runs one job at a time: a repeating one on a timer, and others for which their
/// callers wait. State that only jobs access needs no lock. If no thread can be started, the timer
/// never fires, and `sync` runs its job on the caller's thread.
class SerialQueue {
public:
    using Job = std::function<void()>;

    /// `label` names the thread in debuggers and process listings.
    explicit SerialQueue(std::string label);
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;
    /// Cancels the timer and waits for a running job.
    ~SerialQueue();

    /// Runs `job` at once and then every `period`, until `cancelTimer`. One timer at a time.
    void startTimer(std::chrono::milliseconds period, Job job);

    /// After this returns, no further run of the timer's job begins. May be called from any thread,
    /// jobs included.
    void cancelTimer();

    /// Runs `job` on the queue, after a running one, and returns when it has ended. Do not call it
    /// from a job of the same queue.
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
    std::thread thread_; ///< declared last: the thread uses the members above
};

} // namespace kelmar
