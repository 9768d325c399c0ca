#include "ui/qt/dispatcher.hpp"

#include "system/process/thread_name.hpp"

#include <QCoreApplication>
#include <QEvent>
#include <system_error>
#include <thread>
#include <utility>

#include <sys/resource.h>
#include <unistd.h>

namespace kelmar {

void QtDispatcher::toMain(Job job) {
    if (jobs_.post(std::move(job))) {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

bool QtDispatcher::event(QEvent* event) {
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    // Qt delivers all posted events before it draws. A timer fires once per iteration, so many jobs
    // cannot starve the window.
    turn_.start(0, this);
    return true;
}

void QtDispatcher::timerEvent(QTimerEvent* /*event*/) {
    if (!jobs_.runTurn()) {
        turn_.stop();
    }
}

void QtDispatcher::onThread(const char* name, void (*prepare)(), Job job) {
    try {
        std::thread([name, prepare, job] {
            nameThisThread(name);
            prepare();
            job();
        }).detach();
    } catch (const std::system_error&) {
        // If no thread can be started, the job runs on the main thread and blocks the window.
        toMain(std::move(job));
    }
}

void QtDispatcher::userInitiated(Job job) {
    onThread(
        "user-initiated", [] {}, std::move(job));
}

void QtDispatcher::utility(Job job) {
    const auto yieldToOthers = [] {
        // setpriority(2): on Linux each thread has its own nice value, which its children inherit.
        constexpr int nicer = 10;
        const auto self = static_cast<id_t>(::gettid());
        ::setpriority(PRIO_PROCESS, self, ::getpriority(PRIO_PROCESS, self) + nicer);
    };
    onThread("utility", yieldToOthers, std::move(job));
}

} // namespace kelmar
