#include "ui/appkit/dispatcher.hpp"

#include "ui/appkit/from_toolkit.hpp"

#include <utility>

#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>

namespace kelmar {

namespace {

/// dispatch_async_f(3): a context of ours and the function that takes it over.
void runJob(void* context) {
    const std::unique_ptr<Dispatcher::Job> job(static_cast<Dispatcher::Job*>(context));
    @autoreleasepool {
        fromToolkit(*job);
    }
}

void runOnQueue(qos_class_t quality, Dispatcher::Job job) {
    dispatch_async_f(dispatch_get_global_queue(quality, 0), new Dispatcher::Job(std::move(job)),
                     runJob);
}

} // namespace

void QueueDispatcher::toMain(Job job) {
    if (jobs_->post(std::move(job))) {
        askForTurn(jobs_);
    }
}

void QueueDispatcher::askForTurn(const Jobs& jobs) {
    dispatch_async_f(dispatch_get_main_queue(), new Jobs(jobs), turn);
}

void QueueDispatcher::turn(void* context) {
    const std::unique_ptr<Jobs> jobs(static_cast<Jobs*>(context));
    @autoreleasepool {
        fromToolkit([&jobs] {
            if ((*jobs)->runTurn()) {
                askForTurn(*jobs);
            }
        });
    }
}

void QueueDispatcher::userInitiated(Job job) {
    runOnQueue(QOS_CLASS_USER_INITIATED, std::move(job));
}

void QueueDispatcher::utility(Job job) {
    runOnQueue(QOS_CLASS_UTILITY, std::move(job));
}

} // namespace kelmar
