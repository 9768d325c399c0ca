#include "tests/gnustep/shims/dispatch/dispatch.h"

#include "system/files/file_descriptor.hpp"
#include "tests/gnustep/shims/dispatch/main_queue.h"

#include <chrono>
#include <deque>
#include <mutex>
#include <thread>

#import <AppKit/AppKit.h>
#include <sys/eventfd.h>

struct KelmarQueue {
    qos_class_t quality;
};

namespace {

struct Work {
    void* context;
    dispatch_function_t function;
};

KelmarQueue mainQueue{QOS_CLASS_USER_INTERACTIVE};
std::mutex lock;

std::deque<Work>& waiting() {
    static auto* const works = new std::deque<Work>;
    return *works;
}

thread_local qos_class_t quality = QOS_CLASS_UNSPECIFIED;

/// See eventfd(2). Never closed: a thread may still wake the main thread while the process exits.
const kelmar::FileDescriptor& wakeUp() {
    static const auto* const event =
        new kelmar::FileDescriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
    return *event;
}

/// The modes in which the Mac serves the main queue: those that count as common, with what runs
/// while a button is held down, a menu is open or something is modal.
NSArray* servedModes() {
    return [NSArray arrayWithObjects:NSDefaultRunLoopMode, NSModalPanelRunLoopMode,
                                     NSEventTrackingRunLoopMode, nil];
}

/// GNUstep is to know of every thread that uses it.
class Registration {
public:
    Registration() { GSRegisterCurrentThread(); }

    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

    ~Registration() { GSUnregisterCurrentThread(); }
};

void runOnThread(qos_class_t wanted, dispatch_time_t delay, dispatch_queue_t queue, Work work) {
    std::thread([=] {
        const Registration registration;
        quality = wanted;
        std::this_thread::sleep_for(std::chrono::nanoseconds(delay));
        if (queue == &mainQueue) {
            dispatch_async_f(queue, work.context, work.function);
        } else {
            work.function(work.context);
        }
    }).detach();
}

} // namespace

/// What the run loop calls to serve the main queue. An event wakes it: GNUstep's own way to perform
/// something on the main thread leaves a note in every mode that is not run, and slows down over
/// them.
@interface KelmarMainQueueServer : NSObject <RunLoopEvents>
+ (void)serve;
@end

@implementation KelmarMainQueueServer

+ (void)wake {
    static_cast<void>(::eventfd_write(wakeUp().get(), 1));
}

- (void)receivedEvent:(void*)data
                 type:(RunLoopEventType)type
                extra:(void*)extra
              forMode:(NSString*)mode {
    static_cast<void>(data);
    static_cast<void>(type);
    static_cast<void>(extra);
    static_cast<void>(mode);
    eventfd_t count = 0;
    static_cast<void>(::eventfd_read(wakeUp().get(), &count));
    [KelmarMainQueueServer serve];
}

+ (void)serve {
    // As on the Mac, the queue is serial: a run loop that a job turns does not run the next job
    // inside it. What is added meanwhile waits for the next turn.
    static bool serving = false;
    if (serving) {
        return;
    }
    serving = true;
    std::size_t count = 0;
    {
        const std::scoped_lock guard(lock);
        count = waiting().size();
    }
    for (; count > 0; --count) {
        Work work{};
        {
            const std::scoped_lock guard(lock);
            work = waiting().front();
            waiting().pop_front();
        }
        NSAutoreleasePool* const pool = [NSAutoreleasePool new];
        work.function(work.context);
        [pool drain];
    }
    serving = false;
    const std::scoped_lock guard(lock);
    if (!waiting().empty()) {
        [self wake];
    }
}

@end

extern "C" {

qos_class_t qos_class_self(void) {
    return [NSThread isMainThread] ? QOS_CLASS_USER_INTERACTIVE : quality;
}

dispatch_queue_t dispatch_get_main_queue(void) {
    return &mainQueue;
}

dispatch_queue_t dispatch_get_global_queue(intptr_t identifier, uintptr_t /*flags*/) {
    static KelmarQueue initiated{QOS_CLASS_USER_INITIATED};
    static KelmarQueue utility{QOS_CLASS_UTILITY};
    static KelmarQueue other{QOS_CLASS_DEFAULT};
    switch (identifier) {
    case QOS_CLASS_USER_INITIATED:
        return &initiated;
    case QOS_CLASS_UTILITY:
        return &utility;
    default:
        return &other;
    }
}

dispatch_time_t dispatch_time(dispatch_time_t when, int64_t delta) {
    return when + static_cast<dispatch_time_t>(delta);
}

void dispatch_async_f(dispatch_queue_t queue, void* context, dispatch_function_t work) {
    if (queue != &mainQueue) {
        runOnThread(queue->quality, 0, queue, {context, work});
        return;
    }
    const std::scoped_lock guard(lock);
    waiting().push_back({context, work});
    if (waiting().size() == 1) {
        [KelmarMainQueueServer wake];
    }
}

void dispatch_after_f(dispatch_time_t when, dispatch_queue_t queue, void* context,
                      dispatch_function_t work) {
    runOnThread(queue->quality, when, queue, {context, work});
}
}

void KelmarInstallMainQueue() {
    // GNUstep takes no locks before it has started a thread itself.
    [NSThread detachNewThreadSelector:@selector(class) toTarget:[NSObject class] withObject:nil];
    id const server = [KelmarMainQueueServer new];
    for (NSString* mode in servedModes()) {
        [[NSRunLoop currentRunLoop] addEvent:reinterpret_cast<void*>(std::intptr_t(wakeUp().get()))
                                        type:ET_RDESC
                                     watcher:server
                                     forMode:mode];
    }
}
