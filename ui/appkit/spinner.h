#pragma once

#import <AppKit/AppKit.h>

namespace kelmar {

/// A small spinner that turns whenever it is shown.
NSProgressIndicator* makeSpinner();

/// Shows or hides it; hidden, it costs nothing.
void setSpinning(NSProgressIndicator* spinner, bool spinning);

} // namespace kelmar
