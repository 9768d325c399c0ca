#include "tests/gnustep/harness/dirty_region.hpp"

#include "tests/gnustep/shims/install.h"

namespace kelmar::test {

namespace {

using Invalidate = void (*)(id, SEL, NSRect);

Invalidate gnustepInvalidate = nullptr;
DirtyRegion* current = nullptr;

/// Every invalidation comes through here.
void invalidate(id self, SEL command, NSRect rectangle) {
    if (current != nullptr) {
        current->add(self, rectangle);
    }
    gnustepInvalidate(self, command, rectangle);
}

} // namespace

DirtyRegion::DirtyRegion() {
    if (gnustepInvalidate == nullptr) {
        gnustepInvalidate =
            KelmarReplace([NSView class], @selector(setNeedsDisplayInRect:), invalidate);
    }
    current = this;
}

DirtyRegion::~DirtyRegion() {
    current = nullptr;
}

NSRect DirtyRegion::bounds() const {
    return bounds_;
}

void DirtyRegion::add(NSView* view, NSRect rectangle) {
    if (![NSThread isMainThread]) {
        ++fromOtherThreads_;
        return;
    }
    NSView* const content = [[view window] contentView];
    const NSRect seen = NSIntersectionRect(rectangle, [view visibleRect]);
    if (content != nil && !NSIsEmptyRect(seen)) {
        bounds_ = NSUnionRect(bounds_, [view convertRect:seen toView:content]);
    }
}

} // namespace kelmar::test
