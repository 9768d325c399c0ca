#pragma once

#include <atomic>

#import <AppKit/AppKit.h>

namespace kelmar::test {

/// What of a window is to be drawn anew, from now on until it is asked. One at a time.
class Painting {
public:
    Painting();
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;
    ~Painting();

    /// Around all that is to be drawn, in the window's content as `placeInWindow` has it; empty
    /// when nothing is.
    [[nodiscard]] NSRect place() const;

    /// How often something was to be drawn from another thread than the main one.
    [[nodiscard]] int fromElsewhere() const { return fromElsewhere_; }

    /// For the toolkit's calls.
    void add(NSView* view, NSRect rectangle);

private:
    NSRect place_ = NSZeroRect;
    std::atomic<int> fromElsewhere_{0};
};

} // namespace kelmar::test
