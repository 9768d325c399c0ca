#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// The text under `key` in the dictionary that the property-list file at `path` holds, in any form
/// of property list (XML, binary, old text form; see plist(5)). Absent if the file cannot be read,
/// is larger than any version record (16 MiB), is malformed or hostile, holds no dictionary, or if
/// the value under `key` is not text. Bounded in time and memory whatever the file holds. May be
/// called from any thread.
std::optional<std::string> propertyListString(const std::string& path, std::string_view key);

/// The same for the bytes of a file. Each platform has its own source for this function.
std::optional<std::string> stringInPropertyList(std::string_view bytes, std::string_view key);

} // namespace kelmar
