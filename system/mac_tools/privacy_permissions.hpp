#pragma once

#include <optional>
#include <string>
#include <string_view>

/// What the user allowed an application to access, through tccutil(1).
namespace kelmar::PrivacyPermissions {

/// Resets every permission of the application with this bundle identifier; needs no administrator.
/// Absent on success, else tccutil's own words, trimmed: it fails for an application that the
/// system does not know. Runs /usr/bin/tccutil once and blocks until it has ended. May be called
/// from any thread.
std::optional<std::string> reset(std::string_view bundleIdentifier);

} // namespace kelmar::PrivacyPermissions
