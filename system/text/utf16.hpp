#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// The UTF-8 form of `bytes` when they begin with a byte-order mark of UTF-16, either order,
/// without the mark; absent when they don't. Unpaired surrogates and an odd last byte become
/// U+FFFD.
std::optional<std::string> utf8FromMarkedUtf16(std::string_view bytes);

} // namespace kelmar
