#include "ui/appkit/size_label.h"

#include "system/text/foundation_text_macos.hpp"

@implementation KelmarSizeLabel

+ (instancetype)label {
    KelmarSizeLabel* const label = [self lineWithStyle:kelmar::TextStyle::size
                                                  tone:kelmar::TextTone::secondary];
    [label setAlignment:NSTextAlignmentRight];
    return label;
}

- (void)render:(const kelmar::SizeText&)size {
    [self showText:size.text()];
    [self setAccessibilityLabel:kelmar::foundationText(size.accessibleName())];
}

@end
