#include "ui/appkit/details.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/accessible.h"
#include "ui/appkit/from_toolkit.hpp"
#include "ui/appkit/run_loop_modes.h"
#include "ui/appkit/state.h"
#include "ui/look.hpp"

#include <algorithm>

@implementation KelmarDetailsView

+ (instancetype)viewWithActions:(const kelmar::WindowActions*)actions {
    return [[[self alloc] initWithActions:actions] autorelease];
}

/// Two controls: a triangle, and its text beside it.
- (instancetype)initWithActions:(const kelmar::WindowActions*)actions {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        actions_ = actions;
        triangle_ = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
        [triangle_ setBezelStyle:NSBezelStyleDisclosure];
        [triangle_ setButtonType:NSButtonTypePushOnPushOff];
        [triangle_ setTitle:@""];
        [triangle_ sizeToFit];
        label_ = [[[NSButton alloc] initWithFrame:NSZeroRect] autorelease];
        [label_ setBordered:NO];
        [label_ setButtonType:NSButtonTypeMomentaryChange];
        [label_ setRefusesFirstResponder:YES];
        // One control for those who can't see: the triangle, which has the text for its name.
        kelmar::setAccessible(label_, false);
        log_ = [KelmarLogView log];
        card_ = [KelmarCardView card];
        for (NSButton* button in @[ triangle_, label_ ]) {
            [button setTarget:self];
            [button setAction:@selector(toggle:)];
            [self addSubview:button];
        }
        [self addSubview:card_];
        [card_ addSubview:log_];
    }
    return self;
}

- (void)dealloc {
    [triangle_ setTarget:nil];
    [label_ setTarget:nil];
    [NSObject cancelPreviousPerformRequestsWithTarget:self];
    [super dealloc];
}

- (void)render:(const kelmar::Details&)details {
    action_ = details.toggle.action;
    NSString* const text = kelmar::foundationText(details.toggle.text);
    if (![[label_ title] isEqualToString:text]) {
        [label_ setTitle:text];
        [label_ sizeToFit];
        kelmar::setAccessibleName(triangle_, details.toggle.text);
        [log_ setName:details.toggle.text];
    }
    isShown_ = details.shown ? YES : NO;
    [self showState];
    kelmar::setUnfolded(triangle_, details.shown);
    [card_ setHidden:details.shown ? NO : YES];
    if (details.shown) {
        [log_ render:details.log];
    }
}

- (void)showState {
    kelmar::setState(triangle_, isShown_);
}

/// The triangle turns by itself, and shows afterwards what the page says.
- (void)toggle:(id)sender {
    static_cast<void>(sender);
    [self performSelector:@selector(showState) withObject:nil afterDelay:0
                  inModes:kelmar::everyRunLoopMode()];
    kelmar::fromToolkit([actions = actions_, action = action_] { actions->perform(action); });
}

- (void)setRoom:(CGFloat)room {
    room_ = room;
}

- (CGFloat)layOutForWidth:(CGFloat)width {
    using namespace kelmar::Look;
    const NSSize triangle = kelmar::alignedSize(triangle_);
    const NSSize label = [label_ frame].size;
    const CGFloat height = std::max(triangle.height, label.height);
    kelmar::setAlignedFrame(
        triangle_, NSMakeRect(0, (height - triangle.height) / 2, triangle.width, triangle.height));
    kelmar::setFrame(label_, NSMakeRect(triangle.width + disclosureGap, (height - label.height) / 2,
                                        label.width, label.height));
    if ([card_ isHidden]) {
        return height;
    }
    const CGFloat top = height + partGap;
    const CGFloat card = std::max<CGFloat>(logHeight + 2 * logVerticalMargin, room_ - top);
    kelmar::setFrame(card_, NSMakeRect(0, top, width, card));
    kelmar::setFrame(log_, NSMakeRect(logSideMargin, logVerticalMargin, width - 2 * logSideMargin,
                                      card - 2 * logVerticalMargin));
    return top + card;
}

@end
