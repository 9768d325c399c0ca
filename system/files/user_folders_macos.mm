#include "system/files/user_folders.hpp"
#include "system/text/foundation_text_macos.hpp"

namespace kelmar {

std::string homeFolder() {
    @autoreleasepool {
        // Looked up by name in the account database: the process's own home follows the
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
