#include "ui/qt/qt_dispatcher.hpp"

#include "system/thread_name.hpp"

#include <QCoreApplication>
#include <QEvent>
#include <chrono>
#include <thread>
#include <utility>

#include <sys/resource.h>
#include <unistd.h>

namespace kelmar {

namespace {

/// What one turn of the event loop gives to jobs: a quarter of the time between two pictures.
constexpr std::chrono::milliseconds share(4);

} // namespace

QtDispatcher::~QtDispatcher() {
    takePosted();
}

void QtDispatcher::toMain(Job job) {
    auto* const posted = new Posted{std::move(job), nullptr};
    Posted* latest = posted_.load(std::memory_order_relaxed);
    // Release: whoever takes the chain sees what this thread wrote. From then on the record belongs
    // to the main thread, which may have freed it by now. Nobody else frees any (no ABA).
    do {
        posted->earlier = latest;
    } while (!posted_.compare_exchange_weak(latest, posted, std::memory_order_release,
                                            std::memory_order_relaxed));
    if (latest == nullptr) {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

void QtDispatcher::takePosted() {
    Posted* latest = posted_.exchange(nullptr, std::memory_order_acquire);
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

bool QtDispatcher::event(QEvent* event) {
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    // Posted events are delivered until there are none, before anything is drawn. A timer comes
    // once a turn, so that a flood of jobs leaves the window its share.
    if (!turn_.isActive()) {
        turn_.start(0, this);
    }
    return true;
}

void QtDispatcher::timerEvent(QTimerEvent* /*event*/) {
    takePosted();
    const auto end = std::chrono::steady_clock::now() + share;
    while (!waiting_.empty() && std::chrono::steady_clock::now() < end) {
        const Job job = std::move(waiting_.front());
        waiting_.pop_front();
        job();
    }
    if (waiting_.empty()) {
        turn_.stop();
        if (posted_.load(std::memory_order_relaxed) != nullptr) {
            turn_.start(0, this);
        }
    }
}

void QtDispatcher::userInitiated(Job job) {
    std::thread([job = std::move(job)] {
        nameThisThread("user-initiated");
        job();
    }).detach();
}

void QtDispatcher::utility(Job job) {
    std::thread([job = std::move(job)] {
        nameThisThread("utility");
        // setpriority(2): on Linux the nice value is a thread's own, and its children inherit it.
        constexpr int nicer = 10;
        ::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), nicer);
        job();
    }).detach();
}

} // namespace kelmar
