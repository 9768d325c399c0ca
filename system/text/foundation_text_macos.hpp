#pragma once

#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace kelmar {

/// `text` as Foundation's, each ill-formed sequence of its UTF-8 replaced by U+FFFD. Never nil: a
/// nil where a text is expected ends the program or makes a label vanish. Lives as long as the pool
/// around the call.
NSString* foundationText(std::string_view text);

/// `text` in UTF-8, each unpaired surrogate replaced; empty for nil.
std::string plainText(NSString* text);

} // namespace kelmar
