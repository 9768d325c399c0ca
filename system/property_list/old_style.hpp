#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// The text under `key` in the dictionary that `text` holds in the old text form of property lists,
/// `{ key = value; ... }`, as in a version record written by hand or by an old tool. Absent when
/// anything in `text` departs from the form, when nothing stands under `key`, and when what stands
/// there is no text. Of several values under one key the last counts. `text` is UTF-8.
std::optional<std::string> stringInOldStylePropertyList(std::string_view text,
                                                        std::string_view key);

/// Whether a reader that goes down `text` by recursion stays on a small stack: it holds few
/// containers, or is sound in the old text form and nested no deeper than any real record.
bool isModestOldStylePropertyList(std::string_view text);

} // namespace kelmar
