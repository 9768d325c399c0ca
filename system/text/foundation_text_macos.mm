#include "system/text/foundation_text_macos.hpp"

#include "system/text/utf8.hpp"

namespace kelmar {

NSString* foundationText(std::string_view text) {
    const std::string sound = decodeUtf8(text);
    NSString* const made = [[[NSString alloc] initWithBytes:sound.data() length:sound.size()
                                                   encoding:NSUTF8StringEncoding] autorelease];
    return made != nil ? made : @"";
}

std::string plainText(NSString* text) {
    // Not UTF8String: it returns NULL for an unpaired surrogate and stops at a null character.
    NSData* const bytes = [text dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
    if (bytes == nil || [bytes length] == 0) {
        return "";
    }
    return decodeUtf8({static_cast<const char*>([bytes bytes]), [bytes length]});
}

} // namespace kelmar
