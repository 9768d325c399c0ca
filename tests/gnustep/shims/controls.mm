#import "tests/gnustep/shims/controls.h"

#import "tests/gnustep/shims/install.h"

#import <AppKit/AppKit.h>

namespace {

using Measure = NSSize (*)(id, SEL, NSRect);

Measure gnustepMeasure = nullptr;

NSSize measureWrapped(id self, SEL command, NSRect bounds) {
    if (![self wraps]) {
        return gnustepMeasure(self, command, bounds);
    }
    // What a text cell leaves free at both sides.
    constexpr CGFloat inset = 4;
    const NSSize room = NSMakeSize(bounds.size.width - 2 * inset, bounds.size.height);
    const NSRect used =
        [[self attributedStringValue] boundingRectWithSize:room
                                                   options:NSStringDrawingUsesLineFragmentOrigin];
    return NSMakeSize(used.size.width + 2 * inset, used.size.height);
}

void fitSwitch(id self, SEL /*command*/) {
    [self setFrameSize:NSMakeSize(38, 21)];
}

using Make = id (*)(id, SEL, NSRect);

Make gnustepMakeSwitch = nullptr;

id makeEnabledSwitch(id self, SEL command, NSRect frame) {
    id const made = gnustepMakeSwitch(self, command, frame);
    [made setEnabled:YES];
    return made;
}

void clickSwitch(id self, SEL /*command*/, id /*sender*/) {
    if ([self isEnabled]) {
        const bool on = [self state] == NSControlStateValueOn;
        [self setState:on ? NSControlStateValueOff : NSControlStateValueOn];
        [self sendAction:[self action] to:[self target]];
    }
}

using KeyDown = void (*)(id, SEL, NSEvent*);

KeyDown gnustepKeyDown = nullptr;

void pressSwitch(id self, SEL command, NSEvent* event) {
    if ([[event characters] isEqualToString:@" "]) {
        [self performClick:nil];
    } else {
        gnustepKeyDown(self, command, event);
    }
}

BOOL acceptFocus(id self, SEL /*command*/) {
    return [self isEnabled];
}

} // namespace

void KelmarInstallControls() {
    gnustepMeasure =
        KelmarReplace([NSTextFieldCell class], @selector(cellSizeForBounds:), measureWrapped);
    Class const toggle = [NSSwitch class];
    KelmarReplace(toggle, @selector(sizeToFit), fitSwitch);
    KelmarReplace(toggle, @selector(performClick:), clickSwitch);
    KelmarReplace(toggle, @selector(acceptsFirstResponder), acceptFocus);
    gnustepKeyDown = KelmarReplace(toggle, @selector(keyDown:), pressSwitch);
    gnustepMakeSwitch = KelmarReplace(toggle, @selector(initWithFrame:), makeEnabledSwitch);
}
