#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// `text`, which may hold the names of files, so that it stays in its line, reads in its own
/// direction, and means nothing to a terminal: control characters as their pictures (U+2400 and
/// following; those of C1, which have none, as U+FFFD), and separators of lines, direction marks
/// and ill-formed sequences of UTF-8 as U+FFFD. The result is well-formed.
std::string harmlessText(std::string_view text);

} // namespace kelmar
