#pragma once

#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace kelmar {

/// Converts `text` to an NSString, replacing each ill-formed UTF-8 sequence by U+FFFD. Never nil:
/// where a framework expects a text, nil ends the program or makes a label vanish. Autoreleased.
NSString* foundationText(std::string_view text);

/// Converts `text` to UTF-8, replacing each unpaired surrogate; empty for nil.
std::string plainText(NSString* text);

} // namespace kelmar
