#pragma once

#include "ui/dispatcher.hpp"
#include "ui/main_thread_jobs.hpp"

#include <memory>

namespace kelmar {

/// Jobs on the system's dispatch queues: the main one, which the application's event loop serves,
/// and the concurrent ones for what a person waits for and for what may take its time.
class QueueDispatcher : public Dispatcher {
public:
    /// Jobs run in the order in which they were posted, but no more at a time than leave the event
    /// loop able to draw and to answer.
    void toMain(Job job) override;
    void userInitiated(Job job) override;
    void utility(Job job) override;

private:
    using Jobs = std::shared_ptr<MainThreadJobs>;

    static void askForTurn(const Jobs& jobs);
    static void turn(void* context); ///< a `Jobs` that it takes over

    Jobs jobs_ = std::make_shared<MainThreadJobs>(); ///< shared with the turn that is on its way
};

} // namespace kelmar
