#pragma once

#include "ui/appkit/card.h"
#include "ui/appkit/text_label.h"

/// A title and a card below it. Subclasses put their rows into the card.
@interface KelmarSection : KelmarFlippedView {
    KelmarTextLabel* title_;
    KelmarCardView* card_;
}

+ (instancetype)section;

- (KelmarCardView*)card;

/// The empty text for a section without a title.
- (void)showTitle:(const std::string&)title;

/// Places the card's subviews; answers the height that they take. Nothing is placed here.
- (CGFloat)layOutCardForWidth:(CGFloat)width;

@end
