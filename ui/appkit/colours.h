#pragma once

#include "ui/page.hpp"

#import <AppKit/AppKit.h>

namespace kelmar {

/// The system's colour for a meaning. It follows the appearance, light or dark, by itself.
NSColor* colourOf(Tint tint);

} // namespace kelmar
