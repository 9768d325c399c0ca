#include "ui/appkit/veil.h"

#include "ui/look.hpp"

#include <algorithm>

@implementation KelmarVeil

+ (instancetype)veilAtTop:(BOOL)above {
    KelmarVeil* const veil = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    veil->above_ = above;
    return veil;
}

- (BOOL)isFlipped {
    return YES;
}

- (NSView*)hitTest:(NSPoint)point {
    static_cast<void>(point);
    return nil;
}

- (void)drawRect:(NSRect)dirty {
    static_cast<void>(dirty);
    using namespace kelmar::Look;
    constexpr int solid = 2 * hairline; // next to the line
    const NSRect bounds = [self bounds];
    for (int row = 0; row < scrollVeil; ++row) {
        const CGFloat top = above_ ? row : NSHeight(bounds) - row - 1;
        const CGFloat left = scrollVeil - row;
        const CGFloat opacity = std::min(left / (scrollVeil - solid), 1.0);
        [[[NSColor windowBackgroundColor] colorWithAlphaComponent:opacity] setFill];
        NSRectFillUsingOperation(NSMakeRect(0, top, NSWidth(bounds), hairline),
                                 NSCompositingOperationSourceOver);
    }
}

@end
