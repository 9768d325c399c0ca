#pragma once

#include <string_view>

/// The current user's preferences, through defaults(1).
namespace kelmar::Preferences {

/// Deletes the preferences of `domain` and makes cfprefsd(8) forget them, which would otherwise
/// write the file again. Does nothing if there are none. Runs /usr/bin/defaults once and blocks
/// until it has ended. May be called from any thread.
void deleteDomain(std::string_view domain);

} // namespace kelmar::Preferences
