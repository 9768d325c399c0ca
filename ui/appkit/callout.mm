#include "ui/appkit/callout.h"

#include "ui/appkit/colours.h"
#include "ui/look.hpp"

@implementation KelmarCalloutBox

+ (instancetype)box {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        card_ = [KelmarCardView card];
        note_ = [KelmarNoteRow rowWithColumn:kelmar::Look::rowIcons style:kelmar::TextStyle::body
                                        tone:kelmar::TextTone::primary];
        [self addSubview:card_];
        [card_ addSubview:note_];
    }
    return self;
}

- (void)render:(const kelmar::Callout&)callout {
    [card_ setTint:kelmar::colourOf(callout.tint)];
    [note_ showSymbol:callout.symbol tint:callout.tint text:callout.text];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const CGFloat height =
        kelmar::place(note_, cardPadding, cardPadding, width - 2 * cardPadding) + cardPadding;
    kelmar::setFrame(card_, NSMakeRect(0, 0, width, height));
    return height;
}

@end
