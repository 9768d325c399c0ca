#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// Converts `bytes` to UTF-8, without the mark, if they begin with a byte-order mark of UTF-16 in
/// either order; otherwise absent. Unpaired surrogates and an odd last byte become U+FFFD.
std::optional<std::string> utf8FromMarkedUtf16(std::string_view bytes);

} // namespace kelmar
