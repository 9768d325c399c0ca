#include "ui/appkit/paragraph.h"

@implementation KelmarParagraph

+ (instancetype)paragraph {
    KelmarParagraph* const paragraph = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    paragraph->text_ = [KelmarTextLabel labelWithStyle:kelmar::TextStyle::body
                                                  tone:kelmar::TextTone::primary];
    [paragraph addSubview:paragraph->text_];
    return paragraph;
}

- (void)showText:(const std::string&)text {
    [text_ showText:text];
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    return kelmar::place(text_, 0, 0, width);
}

@end
