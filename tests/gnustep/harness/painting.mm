#include "tests/gnustep/harness/painting.hpp"

#include "tests/gnustep/stand_ins/install.h"

namespace kelmar::test {

namespace {

using Invalidate = void (*)(id, SEL, NSRect);

Invalidate gnustepInvalidate = nullptr;
Painting* current = nullptr;

/// Everything that is to be drawn comes through here.
void invalidate(id self, SEL command, NSRect rectangle) {
    if (current != nullptr) {
        current->add(self, rectangle);
    }
    gnustepInvalidate(self, command, rectangle);
}

} // namespace

Painting::Painting() {
    if (gnustepInvalidate == nullptr) {
        gnustepInvalidate =
            KelmarReplace([NSView class], @selector(setNeedsDisplayInRect:), invalidate);
    }
    current = this;
}

Painting::~Painting() {
    current = nullptr;
}

NSRect Painting::place() const {
    return place_;
}

void Painting::add(NSView* view, NSRect rectangle) {
    if (![NSThread isMainThread]) {
        ++fromElsewhere_;
        return;
    }
    NSView* const content = [[view window] contentView];
    const NSRect seen = NSIntersectionRect(rectangle, [view visibleRect]);
    if (content != nil && !NSIsEmptyRect(seen)) {
        place_ = NSUnionRect(place_, [view convertRect:seen toView:content]);
    }
}

} // namespace kelmar::test
