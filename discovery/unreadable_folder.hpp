#pragma once

#include <optional>
#include <string>

namespace kelmar {

/// The first folder at or beneath `path`, links not followed, that belongs to this user and that
/// this user may nevertheless not read or search. `Scanner::ownedByMe` counts such a folder as
/// somebody else's. Absent when there is none; folders of others are not looked into.
std::optional<std::string> unreadableFolderOfMine(const std::string& path);

} // namespace kelmar
