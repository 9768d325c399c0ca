#include "system/process/serial_queue.hpp"

#include "system/process/thread_name.hpp"

#include <system_error>
#include <utility>

namespace kelmar {

SerialQueue::SerialQueue(std::string label) : label_(std::move(label)) {
    try {
        thread_ = std::thread([this] { work(); });
    } catch (const std::system_error&) {
        // See the header: without the thread, `sync` runs jobs on the caller's.
    }
}

SerialQueue::~SerialQueue() {
    {
        const std::scoped_lock lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) {
        thread_.join();
    }
}

void SerialQueue::startTimer(std::chrono::milliseconds period, Job job) {
    {
        const std::scoped_lock lock(mutex_);
        period_ = period;
        timerJob_ = std::move(job);
        next_ = std::chrono::steady_clock::now();
    }
    changed_.notify_all();
}

void SerialQueue::cancelTimer() {
    const std::scoped_lock lock(mutex_);
    timerJob_ = nullptr;
}

void SerialQueue::sync(const Job& job) {
    if (!thread_.joinable()) {
        job();
        return;
    }
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return waiting_ == nullptr; });
    waiting_ = &job;
    changed_.notify_all();
    changed_.wait(lock, [this, &job] { return waiting_ != &job; });
}

void SerialQueue::work() {
    nameThisThread(label_);
    std::unique_lock lock(mutex_);
    while (!ending_) {
        if (waiting_ != nullptr) {
            const Job& job = *waiting_;
            lock.unlock();
            job();
            lock.lock();
            waiting_ = nullptr;
            changed_.notify_all();
        } else if (!timerJob_) {
            changed_.wait(lock);
        } else if (std::chrono::steady_clock::now() >= next_) {
            const Job job = timerJob_;
            next_ = std::chrono::steady_clock::now() + period_;
            lock.unlock();
            job();
            lock.lock();
        } else {
            changed_.wait_until(lock, next_);
        }
    }
}

} // namespace kelmar
