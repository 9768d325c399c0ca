#include "tests/gnustep/harness/test_environment.hpp"

#include "tests/gnustep/shims/install.h"

#include <cstdlib>

#import <AppKit/AppKit.h>

namespace kelmar::test {

namespace {

TestEnvironment* made = nullptr;

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

TestEnvironment::TestEnvironment() {
    ::setenv("DISPLAY", screen_.name().c_str(), 1);
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    chooseDefaults();
    [NSApplication sharedApplication];
    KelmarInstallShims();
    [NSApp finishLaunching];
    [pool drain];
    made = this;
}

TestEnvironment& TestEnvironment::current() {
    return *made;
}

} // namespace kelmar::test
