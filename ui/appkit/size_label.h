#pragma once

#include "ui/appkit/text_label.h"
#include "ui/page.hpp"

/// A size. Its digits are of equal width, so that nothing jumps when it arrives.
@interface KelmarSizeLabel : KelmarTextLabel

+ (instancetype)label;

- (void)render:(const kelmar::SizeText&)size;

@end
