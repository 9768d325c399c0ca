#include "ui/appkit/busy_row.h"

#include "ui/appkit/accessible.h"
#include "ui/appkit/spinner.h"
#include "ui/look.hpp"

#include <algorithm>

@implementation KelmarBusyRow

+ (instancetype)row {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        spinner_ = kelmar::makeSpinner();
        text_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                           tone:kelmar::TextTone::secondary];
        [self addSubview:spinner_];
        [self addSubview:text_];
        kelmar::setAccessible(spinner_, false);
    }
    return self;
}

- (void)render:(const std::optional<kelmar::Busy>&)busy {
    [self setHidden:busy ? NO : YES];
    kelmar::setSpinning(spinner_, busy.has_value());
    [text_ showText:busy ? busy->text : ""];
}

- (CGFloat)naturalWidth {
    using kelmar::Look::noteIcons;
    return noteIcons.width + noteIcons.gap + [text_ naturalWidth];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat text = noteIcons.width + noteIcons.gap;
    const CGFloat textHeight = [text_ heightForWidth:width - text];
    const CGFloat height = std::max<CGFloat>(noteIcons.width, textHeight);
    const CGFloat inset = (noteIcons.width - spinner) / 2.0;
    kelmar::setFrame(spinner_, NSMakeRect(inset, (height - spinner) / 2, spinner, spinner));
    kelmar::place(text_, text, (height - textHeight) / 2, width - text);
    return height;
}

@end
