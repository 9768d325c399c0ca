#pragma once

#include "ui/appkit/busy_row.h"
#include "ui/appkit/flipped_view.h"
#include "ui/page.hpp"
#include "ui/window_actions.hpp"

/// Notes, or what is going on, on the leading side; the buttons at the trailing one.
@interface KelmarFooterView : KelmarFlippedView {
    const kelmar::WindowActions* actions_;
    KelmarBusyRow* busy_;
    NSMutableArray* notes_;
    NSMutableArray* buttons_;
}

/// `actions` outlive the view.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions;
+ (instancetype)footerWithActions:(const kelmar::WindowActions*)actions;

- (void)render:(const kelmar::Footer&)footer;

@end
