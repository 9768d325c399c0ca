#pragma once

#include "ui/appkit/flipped_view.h"
#include "ui/appkit/text_label.h"

/// A text that stands alone in the column.
@interface KelmarParagraph : KelmarFlippedView {
    KelmarTextLabel* text_;
}

+ (instancetype)paragraph;

- (void)showText:(const std::string&)text;

@end
