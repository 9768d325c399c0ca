#include "ui/appkit/text_label.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/accessible.h"
#include "ui/appkit/flipped_view.h"
#include "ui/appkit/fonts.h"
#include "ui/drawn_text.hpp"

#include <cmath>

namespace kelmar {

namespace {

constexpr CGFloat unlimited = 100'000;

NSColor* colourOf(TextTone tone) {
    return tone == TextTone::primary ? [NSColor labelColor] : [NSColor secondaryLabelColor];
}

/// Whole points, upwards: a text in a frame that is a fraction too small loses its last line.
NSSize roundedUp(NSSize size) {
    return NSMakeSize(std::ceil(size.width), std::ceil(size.height));
}

} // namespace

} // namespace kelmar

@implementation KelmarTextLabel

- (instancetype)initWithStyle:(kelmar::TextStyle)style
                         tone:(kelmar::TextTone)tone
                        wraps:(BOOL)wraps {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        [self setEditable:NO];
        [self setSelectable:NO];
        [self setBezeled:NO];
        [self setBordered:NO];
        [self setDrawsBackground:NO];
        [self setFont:kelmar::fontOf(style)];
        [self setTone:tone];
        [[self cell] setWraps:wraps];
        [[self cell]
            setLineBreakMode:wraps ? NSLineBreakByWordWrapping : NSLineBreakByTruncatingMiddle];
    }
    return self;
}

+ (instancetype)labelWithStyle:(kelmar::TextStyle)style tone:(kelmar::TextTone)tone {
    return [[[self alloc] initWithStyle:style tone:tone wraps:YES] autorelease];
}

+ (instancetype)lineWithStyle:(kelmar::TextStyle)style tone:(kelmar::TextTone)tone {
    return [[[self alloc] initWithStyle:style tone:tone wraps:NO] autorelease];
}

- (void)showText:(const std::string&)text {
    NSString* const shown = kelmar::foundationText(kelmar::drawnText(text));
    if (![[self stringValue] isEqualToString:shown]) {
        [self setStringValue:shown];
        kelmar::setAccessibleValue(self, text);
        measuredWidth_ = 0;
    }
}

- (void)setTone:(kelmar::TextTone)tone {
    NSColor* const colour = kelmar::colourOf(tone);
    if (![[self textColor] isEqual:colour]) {
        [self setTextColor:colour];
    }
}

- (CGFloat)heightForWidth:(CGFloat)width {
    if (width != measuredWidth_) {
        const NSRect bounds = NSMakeRect(0, 0, width, kelmar::unlimited);
        measuredHeight_ = kelmar::roundedUp([[self cell] cellSizeForBounds:bounds]).height;
        measuredWidth_ = width;
    }
    return measuredHeight_;
}

- (CGFloat)naturalWidth {
    return kelmar::roundedUp([[self cell] cellSize]).width;
}

@end

namespace kelmar {

CGFloat place(KelmarTextLabel* label, CGFloat x, CGFloat y, CGFloat width) {
    const CGFloat height = [label heightForWidth:width];
    setFrame(label, NSMakeRect(x, y, width, height));
    return y + height;
}

} // namespace kelmar
