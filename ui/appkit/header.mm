#include "ui/appkit/header.h"

#include "ui/appkit/accessible.h"
#include "ui/look.hpp"

#include <algorithm>

@implementation KelmarHeaderView

+ (instancetype)header {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        icon_ = [KelmarIconView icon];
        [icon_ showApplicationIcon];
        title_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::title
                                            tone:kelmar::TextTone::primary];
        kelmar::setHeading(title_);
        subtitle_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                               tone:kelmar::TextTone::secondary];
        [subtitle_ showText:"Xg"];
        lineOfSubtitle_ = [subtitle_ heightForWidth:kelmar::Look::windowWidth];
        [self addSubview:icon_];
        [self addSubview:title_];
        [self addSubview:subtitle_];
    }
    return self;
}

- (void)render:(const kelmar::Header&)header {
    [title_ showText:header.title];
    [subtitle_ showText:header.subtitle];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat text = pageMargin + headerIcon + sectionGap;
    const CGFloat textWidth = width - text - pageMargin;
    const CGFloat titleHeight = [title_ heightForWidth:textWidth];
    const CGFloat texts = titleHeight + lineGap + [subtitle_ heightForWidth:textWidth];
    // Room for a subtitle of two lines, so that the page below does not move from phase to phase.
    const CGFloat room = titleHeight + lineGap + 2 * lineOfSubtitle_;
    const CGFloat height = std::max({CGFloat{headerIcon}, room, texts}) + 2 * headerPadding;
    kelmar::setFrame(icon_,
                     NSMakeRect(pageMargin, (height - headerIcon) / 2, headerIcon, headerIcon));
    const CGFloat below = kelmar::place(title_, text, (height - texts) / 2, textWidth);
    kelmar::place(subtitle_, text, below + lineGap, textWidth);
    return height;
}

@end
