#include "ui/appkit/push_button.h"

#include "system/text/foundation_text_macos.hpp"
#include "ui/appkit/from_toolkit.hpp"

namespace kelmar {

NSString* keyEquivalentOf(ButtonKey key) {
    switch (key) {
    case ButtonKey::defaultAction:
    case ButtonKey::both:
        return @"\r";
    case ButtonKey::cancelAction:
        return @"\033";
    case ButtonKey::none:
        break;
    }
    return @"";
}

} // namespace kelmar

@implementation KelmarPushButton

+ (instancetype)buttonWithActions:(const kelmar::WindowActions*)actions {
    return [[[self alloc] initWithActions:actions] autorelease];
}

- (instancetype)initWithActions:(const kelmar::WindowActions*)actions {
    self = [super initWithFrame:NSZeroRect];
    if (self != nil) {
        actions_ = actions;
        [self setBezelStyle:NSBezelStyleRounded];
        [self setButtonType:NSButtonTypeMomentaryPushIn];
        [self setTarget:self];
        [self setAction:@selector(press:)];
    }
    return self;
}

- (void)render:(const kelmar::Button&)button {
    action_ = button.action;
    NSString* const key = kelmar::keyEquivalentOf(button.key);
    if (![[self keyEquivalent] isEqualToString:key]) {
        [self setKeyEquivalent:key];
    }
    NSString* const title = kelmar::foundationText(button.text);
    if (![[self title] isEqualToString:title]) {
        [self setTitle:title];
        [self sizeToFit];
    }
    const BOOL enabled = button.enabled ? YES : NO;
    if ([self isEnabled] != enabled) {
        [self setEnabled:enabled];
    }
    const BOOL destructive = button.destructive ? YES : NO;
    if ([self hasDestructiveAction] != destructive) {
        [self setHasDestructiveAction:destructive];
    }
}

- (void)press:(id)sender {
    static_cast<void>(sender);
    // A copy: what the press does may render the button anew.
    kelmar::fromToolkit([actions = actions_, action = action_] { actions->perform(action); });
}

/// A key that is held down answers one question, and not the next one as well.
- (BOOL)performKeyEquivalent:(NSEvent*)event {
    if ([event type] == NSEventTypeKeyDown && [event isARepeat]) {
        return [[event charactersIgnoringModifiers] isEqualToString:[self keyEquivalent]];
    }
    return [super performKeyEquivalent:event];
}

@end
