#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// The text under `key` in the dictionary that `text` holds in the old text form of property lists,
/// `{ key = value; ... }`, as in a version record written by hand or by an old tool. Absent if
/// `text` is malformed, if there is no `key`, or if its value is not text. If a key is repeated,
/// the last value counts. `text` is UTF-8.
std::optional<std::string> stringInOldStylePropertyList(std::string_view text,
                                                        std::string_view key);

/// Returns true if a recursive parser of `text` needs only a small stack: it holds few containers,
/// or is well-formed in the old text form and nested no deeper than any real file.
bool isModestOldStylePropertyList(std::string_view text);

} // namespace kelmar
