#pragma once

#include "ui/dispatcher.hpp"
#include "ui/main_thread_jobs.hpp"

#include <QBasicTimer>
#include <QObject>

namespace kelmar {

/// Jobs on the event loop of the application and on threads of their own. Made on the main thread,
/// and there as long as any job.
class QtDispatcher : public Dispatcher, private QObject {
public:
    QtDispatcher() = default;
    QtDispatcher(const QtDispatcher&) = delete;
    QtDispatcher& operator=(const QtDispatcher&) = delete;
    ~QtDispatcher() override = default;

    /// Jobs run in the order in which they were posted, but no more at a time than leave the event
    /// loop able to draw and to answer.
    void toMain(Job job) override;
    void userInitiated(Job job) override;
    void utility(Job job) override;

private:
    /// Runs `job` on a thread of its own, after `prepare`; on the main thread, later and without
    /// `prepare`, where the system starts none.
    void onThread(const char* name, void (*prepare)(), Job job);

    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

    MainThreadJobs jobs_;
    QBasicTimer turn_; ///< runs while jobs wait: fires once a turn
};

} // namespace kelmar
