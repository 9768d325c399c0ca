#include "system/mac_tools/privacy_permissions.hpp"

#include "system/process/shell.hpp"
#include "system/text/strings.hpp"

namespace kelmar::PrivacyPermissions {

std::optional<std::string> reset(std::string_view bundleIdentifier) {
    const Shell::Result result =
        Shell::run("/usr/bin/tccutil", {"reset", "All", std::string(bundleIdentifier)});
    return result.status == 0 ? std::nullopt : std::optional(trimmed(result.output));
}

} // namespace kelmar::PrivacyPermissions
