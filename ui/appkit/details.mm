#include "ui/appkit/details.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/from_toolkit.hpp"
#include "ui/appkit/metrics.hpp"

#include <algorithm>

@implementation KelmarDetailsView

/// The triangle turns by itself; its text beside it presses it.
+ (instancetype)viewWithActions:(const kelmar::WindowActions*)actions {
    KelmarDetailsView* const view = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    view->actions_ = actions;
    view->triangle_ = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
    [view->triangle_ setBezelStyle:NSBezelStyleDisclosure];
    [view->triangle_ setButtonType:NSButtonTypePushOnPushOff];
    [view->triangle_ setTitle:@""];
    [view->triangle_ sizeToFit];
    view->label_ = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
    [view->label_ setBordered:NO];
    [view->label_ setButtonType:NSButtonTypeMomentaryChange];
    [view->label_ setRefusesFirstResponder:YES];
    // One control for those who can't see: the triangle, which has the text for its name.
    [view->label_ setAccessibilityElement:NO];
    view->log_ = [KelmarLogView log];
    view->card_ = [KelmarCardView card];
    for (NSButton* button in @[ view->triangle_, view->label_ ]) {
        [button setTarget:view];
        [button setAction:@selector(toggle:)];
        [view addSubview:button];
    }
    [view addSubview:view->card_];
    [view->card_ addSubview:view->log_];
    return view;
}

- (void)dealloc {
    [triangle_ setTarget:nil];
    [label_ setTarget:nil];
    [super dealloc];
}

- (void)render:(const kelmar::Details&)details {
    action_ = details.toggle.action;
    NSString* const text = kelmar::foundationText(details.toggle.text);
    if (![[label_ title] isEqualToString:text]) {
        [label_ setTitle:text];
        [label_ sizeToFit];
        [triangle_ setAccessibilityLabel:text];
        [log_ setName:details.toggle.text];
    }
    if (([triangle_ state] == NSControlStateValueOn) != details.shown) {
        [triangle_ setState:details.shown ? NSControlStateValueOn : NSControlStateValueOff];
    }
    [card_ setHidden:details.shown ? NO : YES];
    if (details.shown) {
        [log_ render:details.log];
    }
}

- (void)toggle:(id)sender {
    static_cast<void>(sender);
    kelmar::fromToolkit([actions = actions_, action = action_] { actions->perform(action); });
}

- (void)setRoom:(CGFloat)room {
    room_ = room;
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Metrics;
    const NSSize triangle = [triangle_ frame].size;
    const NSSize label = [label_ frame].size;
    const CGFloat height = std::max(triangle.height, label.height);
    kelmar::setFrame(
        triangle_, NSMakeRect(0, (height - triangle.height) / 2, triangle.width, triangle.height));
    kelmar::setFrame(label_, NSMakeRect(triangle.width + textGap, (height - label.height) / 2,
                                        label.width, label.height));
    if ([card_ isHidden]) {
        return height;
    }
    const CGFloat top = height + partGap;
    const CGFloat record = std::max<CGFloat>(recordHeight, room_ - top);
    kelmar::setFrame(card_, NSMakeRect(0, top, width, record));
    kelmar::setFrame(log_, NSMakeRect(2, 2, width - 4, record - 4));
    return top + record;
}

@end
