#include "system/property_list/binary.hpp"
#include "system/property_list/old_style.hpp"
#include "system/property_list/property_list.hpp"
#include "system/property_list/xml.hpp"
#include "system/text/foundation_text_macos.hpp"

#include <algorithm>

namespace kelmar {

namespace {

/// The system's reader is recursive, and threads of a dispatch queue have half a megabyte of stack.
/// Null characters are removed first: UTF-16 and UTF-32 have them between the characters of tags.
bool isModest(std::string_view bytes) {
    if (bytes.starts_with("bplist")) {
        return isModestBinaryPropertyList(bytes);
    }
    std::string text(bytes);
    std::erase(text, '\0');
    return text.find("<?xml") != std::string::npos || text.find("<plist") != std::string::npos
               ? isModestXmlPropertyList(text)
               : isModestOldStylePropertyList(text);
}

} // namespace

std::optional<std::string> stringInPropertyList(std::string_view bytes, std::string_view key) {
    if (!isModest(bytes)) {
        return std::nullopt;
    }
    @autoreleasepool {
        NSData* const data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
        id const root = [NSPropertyListSerialization propertyListWithData:data
                                                                  options:NSPropertyListImmutable
                                                                   format:nullptr
                                                                    error:nullptr];
        if (![root isKindOfClass:[NSDictionary class]]) {
            return std::nullopt;
        }
        id const value = [root objectForKey:foundationText(key)];
        if (![value isKindOfClass:[NSString class]]) {
            return std::nullopt;
        }
        std::string text = plainText(value);
        const bool sound = text.find('\0') == std::string::npos;
        return sound ? std::optional(std::move(text)) : std::nullopt;
    }
}

} // namespace kelmar
