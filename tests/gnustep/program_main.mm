// The program's window alone, as an executable: what the Mac's starts when it is given no option.
#include "app/window_application.hpp"
#import "tests/gnustep/shims/install.h"

#import <AppKit/AppKit.h>

int main() {
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    [[NSUserDefaults standardUserDefaults]
        registerDefaults:[NSDictionary dictionaryWithObject:@"NO"
                                                     forKey:@"GSX11HandlesWindowDecorations"]];
    [NSApplication sharedApplication];
    KelmarInstallShims();
    [pool drain];
    return kelmar::runWindowApplication();
}
