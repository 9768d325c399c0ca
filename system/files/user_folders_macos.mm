#include "system/files/user_folders.hpp"
#include "system/text/foundation_text_macos.hpp"

namespace kelmar {

std::string homeFolder() {
    @autoreleasepool {
        // By name, as the account database has it: the process's own notion follows the
        // environment.
        const std::string byName = plainText(NSHomeDirectoryForUser(NSUserName()));
        const std::string home = byName.empty() ? plainText(NSHomeDirectory()) : byName;
        return home.starts_with('/') ? home : "/";
    }
}

std::string temporaryFolder() {
    @autoreleasepool {
        return plainText(NSTemporaryDirectory());
    }
}

} // namespace kelmar
