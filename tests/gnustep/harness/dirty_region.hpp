#pragma once

#include <atomic>

#import <AppKit/AppKit.h>

namespace kelmar::test {

/// Records the dirty region of a window: what has been invalidated since the object was made. There
/// is one object at a time.
class DirtyRegion {
public:
    DirtyRegion();
    DirtyRegion(const DirtyRegion&) = delete;
    DirtyRegion& operator=(const DirtyRegion&) = delete;
    ~DirtyRegion();

    /// The bounding box, in the coordinates of `placeInWindow`; empty when nothing is dirty.
    [[nodiscard]] NSRect bounds() const;

    /// How often another thread than the main one has invalidated something.
    [[nodiscard]] int fromOtherThreads() const { return fromOtherThreads_; }

    /// To be called for every invalidation.
    void add(NSView* view, NSRect rectangle);

private:
    NSRect bounds_ = NSZeroRect;
    std::atomic<int> fromOtherThreads_{0};
};

} // namespace kelmar::test
