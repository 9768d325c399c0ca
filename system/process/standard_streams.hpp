#pragma once

#include <string_view>

namespace kelmar {

/// Writes `line` and a newline to standard output, at once and as a whole, also when standard
/// output is a pipe or a file: nothing is held back in a buffer. A write that fails (the reader has
/// gone, the disk is full) loses the line and answers false. May be called from any thread; lines
/// of several threads come in any order.
bool printLine(std::string_view line);

/// The same for standard error.
bool printErrorLine(std::string_view line);

} // namespace kelmar
