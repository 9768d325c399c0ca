#include "ui/appkit/text_label.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/flipped_view.h"
#include "system/text/harmless_text.hpp"

#include <cmath>

namespace kelmar {

namespace {

constexpr CGFloat unlimited = 100'000;

NSFont* fontOf(TextStyle style) {
    switch (style) {
    case TextStyle::title:
        return [NSFont systemFontOfSize:20 weight:NSFontWeightSemibold];
    case TextStyle::sectionTitle:
        return [NSFont systemFontOfSize:13 weight:NSFontWeightSemibold];
    case TextStyle::callout:
        return [NSFont systemFontOfSize:12];
    case TextStyle::size:
        return [NSFont monospacedDigitSystemFontOfSize:12 weight:NSFontWeightRegular];
    case TextStyle::body:
        break;
    }
    return [NSFont systemFontOfSize:13];
}

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

+ (instancetype)labelWithStyle:(kelmar::TextStyle)style tone:(kelmar::TextTone)tone {
    KelmarTextLabel* const label = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    [label setEditable:NO];
    [label setSelectable:NO];
    [label setBezeled:NO];
    [label setBordered:NO];
    [label setDrawsBackground:NO];
    [label setFont:kelmar::fontOf(style)];
    [label setTextColor:kelmar::colourOf(tone)];
    [[label cell] setWraps:YES];
    [[label cell] setLineBreakMode:NSLineBreakByWordWrapping];
    return label;
}

+ (instancetype)lineWithStyle:(kelmar::TextStyle)style tone:(kelmar::TextTone)tone {
    KelmarTextLabel* const label = [self labelWithStyle:style tone:tone];
    [[label cell] setWraps:NO];
    [[label cell] setLineBreakMode:NSLineBreakByTruncatingMiddle];
    return label;
}

- (void)showText:(const std::string&)text {
    NSString* const shown = kelmar::foundationText(kelmar::harmlessText(text));
    if (![[self stringValue] isEqualToString:shown]) {
        [self setStringValue:shown];
        measuredWidth_ = 0;
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
