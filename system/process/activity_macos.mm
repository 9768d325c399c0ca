#include "system/process/activity.hpp"
#include "system/text/foundation_text_macos.hpp"

namespace kelmar {

std::shared_ptr<void> beginActivity(const std::string& reason) {
    @autoreleasepool {
        NSProcessInfo* const process = [NSProcessInfo processInfo];
        id const token = [process beginActivityWithOptions:NSActivityUserInitiated
                                                    reason:foundationText(reason)];
        return {[token retain], [](void* begun) {
                    @autoreleasepool {
                        id const ended = static_cast<id>(begun);
                        [[NSProcessInfo processInfo] endActivity:ended];
                        [ended release];
                    }
                }};
    }
}

} // namespace kelmar
