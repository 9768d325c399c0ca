#pragma once

#include "ui/appkit/card.h"
#include "ui/appkit/text_label.h"

/// A card, with a title above it once it has been given one. Subclasses put their rows into the
/// card.
@interface KelmarSection : KelmarFlippedView {
    KelmarTextLabel* title_;
    KelmarCardView* card_;
}

+ (instancetype)section;

- (KelmarCardView*)card;

- (void)showTitle:(const std::string&)title;

/// Places the card's subviews; answers the height that they take. Nothing is placed here.
- (CGFloat)layOutCardForWidth:(CGFloat)width;

@end
