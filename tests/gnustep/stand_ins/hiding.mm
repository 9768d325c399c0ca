#import "tests/gnustep/stand_ins/hiding.h"

#import "tests/gnustep/stand_ins/install.h"

#import <AppKit/AppKit.h>

namespace {

using Hide = void (*)(id, SEL, BOOL);

Hide gnustepHide = nullptr;

void hideAndLoseFocus(id self, SEL command, BOOL hidden) {
    gnustepHide(self, command, hidden);
    NSWindow* const window = [self window];
    id const focused = [window firstResponder];
    if (hidden && [focused isKindOfClass:[NSView class]] && [focused isDescendantOf:self]) {
        [window makeFirstResponder:nil];
    }
}

} // namespace

void KelmarInstallHiding() {
    gnustepHide = KelmarReplace([NSView class], @selector(setHidden:), hideAndLoseFocus);
}
