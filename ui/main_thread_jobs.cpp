#include "ui/main_thread_jobs.hpp"

#include <utility>

namespace kelmar {

MainThreadJobs::~MainThreadJobs() {
    takePosted();
}

// Every operation that decides whether to schedule a turn is sequentially consistent: either the
// poster sees that no turn is pending, or the ending turn sees the posted job.
bool MainThreadJobs::post(Dispatcher::Job job) {
    auto* const posted = new Posted{std::move(job), nullptr};
    Posted* latest = posted_.load(std::memory_order_relaxed);
    // After the exchange the main thread owns the node and may already have freed it. No other
    // thread frees nodes, so there is no ABA problem.
    do {
        posted->earlier = latest;
    } while (!posted_.compare_exchange_weak(latest, posted));
    return !asked_.exchange(true);
}

void MainThreadJobs::takePosted() {
    Posted* latest = posted_.exchange(nullptr);
    Posted* earliest = nullptr;
    while (latest != nullptr) {
        Posted* const next = std::exchange(latest->earlier, earliest);
        earliest = std::exchange(latest, next);
    }
    while (earliest != nullptr) {
        waiting_.push_back(std::move(earliest->job));
        delete std::exchange(earliest, earliest->earlier);
    }
}

bool MainThreadJobs::runTurn() {
    takePosted();
    const auto end = std::chrono::steady_clock::now() + share;
    while (!waiting_.empty()) {
        const Dispatcher::Job job = std::move(waiting_.front());
        waiting_.pop_front();
        job();
        if (std::chrono::steady_clock::now() >= end) {
            break;
        }
    }
    if (!waiting_.empty()) {
        return true;
    }
    asked_ = false;
    return posted_ != nullptr && !asked_.exchange(true);
}

} // namespace kelmar
