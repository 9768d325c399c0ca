#pragma once

#include "ui/appkit/flipped_view.h"
#include "ui/appkit/text_label.h"
#include "ui/page.hpp"

/// A spinner, and why.
@interface KelmarBusyRow : KelmarFlippedView {
    NSProgressIndicator* spinner_;
    KelmarTextLabel* text_;
}

+ (instancetype)row;

/// Absent: nothing is going on, and the row is hidden.
- (void)render:(const std::optional<kelmar::Busy>&)busy;

/// The width of the spinner and its text in one line.
- (CGFloat)naturalWidth;

@end
