#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelmar {

/// `words` with `separator` between them.
std::string joined(const std::vector<std::string>& words, std::string_view separator);

/// `text` without leading and trailing characters of `blank`; by default blanks and line ends.
std::string trimmed(std::string_view text, std::string_view blank = " \t\r\n\v\f");

/// The lines of `text`, without their line feeds and without the empty ones.
std::vector<std::string> nonEmptyLines(std::string_view text);

} // namespace kelmar
