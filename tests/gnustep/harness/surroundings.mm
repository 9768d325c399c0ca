#include "tests/gnustep/harness/surroundings.hpp"

#include "tests/gnustep/stand_ins/install.h"

#include <cstdlib>

#import <AppKit/AppKit.h>

namespace kelmar::test {

namespace {

Surroundings* made = nullptr;

/// Window frames are drawn by the toolkit itself: no window manager is there to do it. Scrollers
/// stand where the Mac has them.
void chooseDefaults() {
    NSDictionary* const chosen =
        [NSDictionary dictionaryWithObjectsAndKeys:@"NO", @"GSX11HandlesWindowDecorations",
                                                   @"NSMacintoshInterfaceStyle",
                                                   @"NSScrollViewInterfaceStyle", nil];
    [[NSUserDefaults standardUserDefaults] registerDefaults:chosen];
}

} // namespace

Surroundings::Surroundings() {
    ::setenv("DISPLAY", screen_.name().c_str(), 1);
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    chooseDefaults();
    [NSApplication sharedApplication];
    KelmarInstallStandIns();
    [NSApp finishLaunching];
    [pool drain];
    made = this;
}

Surroundings& Surroundings::current() {
    return *made;
}

} // namespace kelmar::test
