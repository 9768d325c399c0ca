#pragma once

#include <string>

#import <AppKit/AppKit.h>

namespace kelmar::test {

/// What `view` shows, pixel by pixel from its top left corner.
NSBitmapImageRep* drawn(NSView* view);

/// Writes what `view` shows into build/gnustep/screenshots/NAME.png, to be looked at. GNUstep is
/// not AppKit, so only the layout is meaningful.
void saveScreenshot(NSView* view, const std::string& name);

} // namespace kelmar::test
