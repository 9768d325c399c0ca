#include "ui/appkit/card.h"

#include "ui/appkit/metrics.hpp"

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
    const NSRect inside = NSInsetRect([self bounds], 0.5, 0.5);
    NSBezierPath* const outline =
        [NSBezierPath bezierPathWithRoundedRect:inside xRadius:kelmar::Metrics::cardRadius
                                        yRadius:kelmar::Metrics::cardRadius];
    NSColor* const ground =
        tint_ != nil ? [tint_ colorWithAlphaComponent:0.1] : [NSColor controlBackgroundColor];
    NSColor* const edge =
        tint_ != nil ? [tint_ colorWithAlphaComponent:0.35] : [NSColor separatorColor];
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
