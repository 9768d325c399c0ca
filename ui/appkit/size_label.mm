#include "ui/appkit/size_label.h"

#include "ui/appkit/accessible.h"

@implementation KelmarSizeLabel

- (instancetype)init {
    self = [super initWithStyle:kelmar::TextStyle::size tone:kelmar::TextTone::secondary wraps:NO];
    if (self != nil) {
        [self setAlignment:NSTextAlignmentRight];
    }
    return self;
}

+ (instancetype)label {
    return [[[self alloc] init] autorelease];
}

- (void)render:(const kelmar::SizeText&)size {
    [self showText:size.text()];
    kelmar::setAccessibleName(self, size.accessibleName());
}

@end
