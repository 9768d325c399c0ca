#include "ui/appkit/card.h"

#include "ui/look.hpp"

// Both draw with colours that are looked up while they draw, so that light and dark need nothing
// else.
@implementation KelmarCardView

+ (instancetype)card {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (void)dealloc {
    [tint_ release];
    [super dealloc];
}

- (void)setTint:(NSColor*)tint {
    if (![tint_ isEqual:tint]) {
        [tint_ release];
        tint_ = [tint retain];
        [self setNeedsDisplay:YES];
    }
}

- (void)drawRect:(NSRect)dirty {
    static_cast<void>(dirty);
    using namespace kelmar::Look;
    constexpr CGFloat middle = hairline / 2.0; // of the line around the card
    const NSRect inside = NSInsetRect([self bounds], middle, middle);
    NSBezierPath* const outline = [NSBezierPath bezierPathWithRoundedRect:inside xRadius:cardRadius
                                                                  yRadius:cardRadius];
    NSColor* const ground = tint_ != nil ? [tint_ colorWithAlphaComponent:tintedGround]
                                         : [NSColor controlBackgroundColor];
    NSColor* const edge =
        tint_ != nil ? [tint_ colorWithAlphaComponent:tintedEdge] : [NSColor separatorColor];
    [ground setFill];
    [outline fill];
    [edge setStroke];
    [outline stroke];
}

@end

@implementation KelmarHairline

+ (instancetype)line {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (void)drawRect:(NSRect)dirty {
    static_cast<void>(dirty);
    [[NSColor separatorColor] setFill];
    NSRectFillUsingOperation([self bounds], NSCompositingOperationSourceOver);
}

@end
