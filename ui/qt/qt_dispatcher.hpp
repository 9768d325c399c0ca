#pragma once

#include "ui/dispatcher.hpp"

#include <QBasicTimer>
#include <QObject>
#include <atomic>
#include <deque>

namespace kelmar {

/// Jobs on the event loop of the application and on threads of their own. Made on the main thread,
/// and there as long as any job.
class QtDispatcher : public Dispatcher, private QObject {
public:
    QtDispatcher() = default;
    QtDispatcher(const QtDispatcher&) = delete;
    QtDispatcher& operator=(const QtDispatcher&) = delete;
    ~QtDispatcher() override;

    /// Jobs run in the order in which they were posted, but no more at a time than leave the event
    /// loop able to draw and to answer.
    void toMain(Job job) override;
    void userInitiated(Job job) override;
    void utility(Job job) override;

private:
    struct Posted {
        Job job;
        Posted* earlier;
    };

    bool event(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void takePosted();

    std::atomic<Posted*> posted_{nullptr}; ///< the latest first
    std::deque<Job> waiting_;              ///< for the main thread alone, the earliest first
    QBasicTimer turn_;                     ///< runs while jobs wait: fires once a turn
};

} // namespace kelmar
