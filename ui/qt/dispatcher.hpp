#pragma once

#include "ui/dispatcher.hpp"
#include "ui/main_thread_jobs.hpp"

#include <QBasicTimer>
#include <QObject>

namespace kelmar {

/// Runs jobs on the application's event loop and on threads. Construct it on the main thread; it
/// must outlive all jobs.
class QtDispatcher : public Dispatcher, private QObject {
public:
    QtDispatcher() = default;
    QtDispatcher(const QtDispatcher&) = delete;
    QtDispatcher& operator=(const QtDispatcher&) = delete;
    ~QtDispatcher() override = default;

    /// Runs jobs in the order of posting, but only so many at a time that the event loop can draw
    /// and handle input in between.
    void toMain(Job job) override;
    void userInitiated(Job job) override;
    void utility(Job job) override;

private:
    /// Runs `job` on a new thread, after `prepare`. If no thread can be started, posts it to the
    /// main thread, without `prepare`.
    void onThread(const char* name, void (*prepare)(), Job job);

    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

    MainThreadJobs jobs_;
    QBasicTimer turn_; ///< active while jobs wait: fires once per iteration
};

} // namespace kelmar
