#pragma once

#include "ui/look.hpp"

#import <AppKit/AppKit.h>

namespace kelmar {

/// The system's font, proportional or monospaced, in the size and weight of `style`.
NSFont* fontOf(TextStyle style);

} // namespace kelmar
