#include "ui/appkit/busy_row.h"

#include "ui/appkit/metrics.hpp"
#include "ui/appkit/spinner.h"

#include <algorithm>

@implementation KelmarBusyRow

+ (instancetype)row {
    KelmarBusyRow* const row = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    row->spinner_ = kelmar::makeSpinner();
    row->text_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                            tone:kelmar::TextTone::secondary];
    [row addSubview:row->spinner_];
    [row addSubview:row->text_];
    [row->spinner_ setAccessibilityElement:NO];
    return row;
}

- (void)render:(const std::optional<kelmar::Busy>&)busy {
    [self setHidden:busy ? NO : YES];
    kelmar::setSpinning(spinner_, busy.has_value());
    [text_ showText:busy ? busy->text : ""];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Metrics;
    const CGFloat text = spinner + partGap;
    const CGFloat textHeight = [text_ heightForWidth:width - text];
    const CGFloat height = std::max<CGFloat>(spinner, textHeight);
    kelmar::setFrame(spinner_, NSMakeRect(0, (height - spinner) / 2, spinner, spinner));
    kelmar::place(text_, text, (height - textHeight) / 2, width - text);
    return height;
}

@end
