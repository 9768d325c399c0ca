#pragma once

#include <string>
#include <vector>

namespace kelmar::test {

/// The lines of a text, without their ends.
std::vector<std::string> linesOf(const std::string& text);

/// The lines of a file; none of one that is not there.
std::vector<std::string> linesOfFile(const std::string& path);

} // namespace kelmar::test
