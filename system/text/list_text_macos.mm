#include "system/text/foundation_text_macos.hpp"
#include "system/text/list_text.hpp"

namespace kelmar {

std::string listed(const std::vector<std::string>& words) {
    @autoreleasepool {
        NSMutableArray* const texts = [NSMutableArray arrayWithCapacity:words.size()];
        for (const std::string& word : words) {
            [texts addObject:foundationText(word)];
        }
        return plainText([NSListFormatter localizedStringByJoiningStrings:texts]);
    }
}

} // namespace kelmar
