#pragma once

#include <functional>

namespace kelmar {

/// Runs the window's jobs. Nobody waits for a posted job. All functions may be called from any
/// thread.
class Dispatcher {
public:
    using Job = std::function<void()>;

    Dispatcher() = default;
    Dispatcher(const Dispatcher&) = delete;
    Dispatcher& operator=(const Dispatcher&) = delete;
    virtual ~Dispatcher() = default;

    /// Posts `job` to the main thread; jobs run in the order of posting.
    virtual void toMain(Job job) = 0;

    /// Runs `job` on a worker thread, concurrently with other jobs, for something that a person
    /// waits for.
    virtual void userInitiated(Job job) = 0;

    /// The same at low priority: the job yields to all other work.
    virtual void utility(Job job) = 0;
};

} // namespace kelmar
