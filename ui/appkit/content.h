#pragma once

#include "ui/appkit/flipped_view.h"
#include "ui/appkit/veil.h"
#include "ui/page.hpp"
#include "ui/window_actions.hpp"

#include <cstddef>

namespace kelmar {
struct ContentBlocks;
}

/// The content of the page between header and footer, in one column that scrolls. Every block is
/// made when it is first needed, then kept, shown and hidden: one that two phases share, such as
/// the log of a run, lives on from one to the other.
@interface KelmarContentView : NSScrollView {
    const kelmar::WindowActions* actions_;
    kelmar::ContentBlocks* blocks_;
    KelmarFlippedView* column_;
    KelmarVeil* above_;
    KelmarVeil* below_;
}

/// `actions` outlive the view.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame;
+ (instancetype)viewWithActions:(const kelmar::WindowActions*)actions frame:(NSRect)frame;

- (void)render:(const kelmar::Content&)content;

@end
