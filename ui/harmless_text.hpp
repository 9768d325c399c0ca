#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// `text`, which may hold the names of files, so that it stays in its line and reads in its own
/// direction: control characters as their pictures, direction marks and separators of lines as
/// U+FFFD, and so are ill-formed sequences of UTF-8. The result is well-formed.
std::string harmlessText(std::string_view text);

} // namespace kelmar
