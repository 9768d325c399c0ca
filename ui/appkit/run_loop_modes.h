#pragma once

#import <AppKit/AppKit.h>

namespace kelmar {

/// The modes in which the main run loop also runs: while a sheet is open, while the mouse is held.
/// What is to be done in a later turn is done in any of them.
NSArray* everyRunLoopMode();

} // namespace kelmar
