#pragma once

#include <chrono>
#include <cstddef>
#include <map>
#include <memory>

#include <X11/Xlib.h>

namespace kelmar::bench {

/// Sees from outside what is drawn into the windows of other programs: a client of the X server
/// that is told of every window and of every drawing into one (the extension "damage").
class FrameWatch {
public:
    using Clock = std::chrono::steady_clock;

    /// On the screen that DISPLAY names.
    FrameWatch();

    /// Waits until there is something to be seen in a window of 600 by 620, and says when that was.
    /// Ends the run when none comes.
    Clock::time_point firstFrame();

    /// Waits until nothing has been drawn for `quiet`. How often something was until then. Ends the
    /// run when drawing does not end.
    std::size_t untilStill(std::chrono::milliseconds quiet);

    /// Waits for `time`. How often something was drawn.
    std::size_t drawingsWithin(std::chrono::milliseconds time);

    /// Waits until the window that was seen last is gone.
    void untilGone();

private:
    /// Takes in what the server says until `end`, or until `enough` says so.
    template <class Enough>
    bool follow(Clock::time_point end, Enough enough);
    void takeEvent();
    [[nodiscard]] bool showsSomething() const;

    std::unique_ptr<Display, int (*)(Display*)> display_;
    int damageEvent_ = 0;
    std::map<Window, bool> windows_; ///< those at the top level, and whether each is on the screen
    Window watched_ = 0;             ///< the one of the right size, once it has been drawn into
    std::size_t drawings_ = 0;       ///< into that one
};

} // namespace kelmar::bench
