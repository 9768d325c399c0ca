#pragma once

#include <optional>
#include <string>

namespace kelmar {

/// Finds the first folder at or beneath `path` that this user owns but may not read or search;
/// symlinks are not followed. `Scanner::ownedByMe` returns false for such a folder. Absent if there
/// is none. Does not look into other users' folders.
std::optional<std::string> unreadableFolderOfMine(const std::string& path);

} // namespace kelmar
