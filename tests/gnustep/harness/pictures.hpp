#pragma once

#include <string>

#import <AppKit/AppKit.h>

namespace kelmar::test {

/// Writes what `view` shows into build/gnustep/pictures/NAME.png, to be looked at. The toolkit is
/// not the Mac's, so that only the structure says something.
void takePicture(NSView* view, const std::string& name);

} // namespace kelmar::test
