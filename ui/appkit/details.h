#pragma once

#include "ui/appkit/card.h"
#include "ui/appkit/log_view.h"
#include "ui/window_actions.hpp"

/// The log of a run under the control that unfolds it.
@interface KelmarDetailsView : KelmarFlippedView {
    const kelmar::WindowActions* actions_;
    NSButton* triangle_;
    BOOL isShown_; ///< as the page says
    NSButton* label_;
    KelmarCardView* card_;
    KelmarLogView* log_;
    kelmar::Action action_;
    CGFloat room_;
}

/// `actions` outlive the view.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions;
+ (instancetype)viewWithActions:(const kelmar::WindowActions*)actions;

- (void)render:(const kelmar::Details&)details;

/// How high the view may be when it is unfolded, in points: what the page has left.
- (void)setRoom:(CGFloat)room;

@end
