#pragma once

#include <functional>

namespace kelmar {

/// Where the window's work is done. Jobs are handed over and never waited for; each kind may be
/// asked for from any thread.
class Dispatcher {
public:
    using Job = std::function<void()>;

    Dispatcher() = default;
    Dispatcher(const Dispatcher&) = delete;
    Dispatcher& operator=(const Dispatcher&) = delete;
    virtual ~Dispatcher() = default;

    /// Runs `job` on the main thread, later, after everything that was posted before it.
    virtual void toMain(Job job) = 0;

    /// Runs `job` beside the main thread and beside other jobs, for something that a person waits
    /// for.
    virtual void userInitiated(Job job) = 0;

    /// The same for something that may take its time: it yields to all other work.
    virtual void utility(Job job) = 0;
};

} // namespace kelmar
