#pragma once

#include "ui/appkit/flipped_view.h"
#include "ui/appkit/icon.h"
#include "ui/appkit/text_label.h"

/// The program's icon, the title and the subtitle.
@interface KelmarHeaderView : KelmarFlippedView {
    KelmarIconView* icon_;
    KelmarTextLabel* title_;
    KelmarTextLabel* subtitle_;
    CGFloat lineOfSubtitle_;
}

+ (instancetype)header;

- (void)render:(const kelmar::Header&)header;

@end
