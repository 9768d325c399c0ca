#include "system/process/resources.hpp"
#include "system/text/foundation_text_macos.hpp"

namespace kelmar {

std::optional<std::string> resourcePath(const std::string& name) {
    @autoreleasepool {
        const std::size_t dot = name.rfind('.');
        const bool hasType = dot != std::string::npos;
        NSString* const type = hasType ? foundationText(name.substr(dot + 1)) : nil;
        NSString* const path =
            [[NSBundle mainBundle] pathForResource:foundationText(name.substr(0, dot)) ofType:type];
        return path != nil ? std::optional(plainText(path)) : std::nullopt;
    }
}

} // namespace kelmar
