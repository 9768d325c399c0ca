#pragma once

#include <string>

#import <AppKit/AppKit.h>

namespace kelmar::test {

/// Writes what `view` shows into build/gnustep/screenshots/NAME.png, to be looked at. GNUstep is
/// not AppKit, so only the layout is meaningful.
void saveScreenshot(NSView* view, const std::string& name);

} // namespace kelmar::test
