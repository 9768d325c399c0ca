#pragma once

#include <chrono>
#include <cstddef>
#include <map>
#include <memory>

#include <X11/Xlib.h>

namespace kelmar::bench {

/// Watches from outside what other programs draw into their windows: an X client that is notified
/// of every window and of every drawing into one (the extension "damage").
class FrameWatch {
public:
    using Clock = std::chrono::steady_clock;

    /// Connects to the screen that DISPLAY names.
    FrameWatch();

    /// Waits until a window of 600 by 620 shows something, and returns the time. Ends the run if
    /// none does before a timeout.
    Clock::time_point firstFrame();

    /// Waits until nothing has been drawn for `quiet`. Returns the number of drawings until then.
    /// Ends the run if drawing does not stop.
    std::size_t untilStill(std::chrono::milliseconds quiet);

    /// Waits for `time`. Returns the number of drawings.
    std::size_t drawingsWithin(std::chrono::milliseconds time);

    /// Waits until the window last seen has been destroyed.
    void untilGone();

private:
    /// Processes the server's events until `end`, or until `enough` returns true.
    template <class Enough>
    bool follow(Clock::time_point end, Enough enough);
    void takeEvent();
    [[nodiscard]] bool showsSomething() const;

    std::unique_ptr<Display, int (*)(Display*)> display_;
    int damageEvent_ = 0;
    std::map<Window, bool> windows_; ///< top-level windows, and whether each is mapped
    Window watched_ = 0;             ///< the one of the right size, once it has been drawn into
    std::size_t drawings_ = 0;       ///< into the watched window
};

} // namespace kelmar::bench
