#pragma once

#include <string>
#include <vector>

namespace kelmar::test {

/// The lines of a text, without line ends.
std::vector<std::string> linesOf(const std::string& text);

/// The lines of a file; none if it does not exist.
std::vector<std::string> linesOfFile(const std::string& path);

} // namespace kelmar::test
