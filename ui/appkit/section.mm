#include "ui/appkit/section.h"

#include "ui/appkit/accessible.h"
#include "ui/look.hpp"

@implementation KelmarSection

+ (instancetype)section {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        title_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::sectionTitle
                                            tone:kelmar::TextTone::primary];
        [title_ setHidden:YES];
        kelmar::setHeading(title_);
        card_ = [KelmarCardView card];
        [self addSubview:title_];
        [self addSubview:card_];
    }
    return self;
}

- (KelmarCardView*)card {
    return card_;
}

- (void)showTitle:(const std::string&)title {
    [title_ showText:title];
    [title_ setHidden:NO];
}

- (CGFloat)layOutCardForWidth:(CGFloat)width {
    static_cast<void>(width);
    return 0;
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    CGFloat below = 0;
    if (![title_ isHidden]) {
        below = kelmar::place(title_, 0, 0, width);
    }
    const CGFloat height = [self layOutCardForWidth:width];
    [card_ setHidden:height > 0 ? NO : YES];
    if (height > 0 && below > 0) {
        below += kelmar::Look::partGap;
    }
    kelmar::setFrame(card_, NSMakeRect(0, below, width, height));
    return below + height;
}

@end
