#include "ui/appkit/paragraph.h"

@implementation KelmarParagraph

+ (instancetype)paragraph {
    return [[[self alloc] initWithFrame:NSZeroRect] autorelease];
}

- (instancetype)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self != nil) {
        text_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                           tone:kelmar::TextTone::secondary];
        [text_ setAlignment:NSTextAlignmentCenter];
        [self addSubview:text_];
    }
    return self;
}

- (void)showText:(const std::string&)text {
    [text_ showText:text];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    return kelmar::place(text_, 0, 0, width);
}

@end
