#pragma once

#include "ui/appkit/flipped_view.h"

/// A rounded box in the system's own colours, or in a tint, around what stands in it.
@interface KelmarCardView : KelmarFlippedView {
    NSColor* tint_;
}

+ (instancetype)card;

/// Nil for the ground of controls.
- (void)setTint:(NSColor*)tint;

@end

/// A line between two rows, which fills its frame.
@interface KelmarHairline : NSView

+ (instancetype)line;

@end
