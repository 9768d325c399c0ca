#pragma once

#include <string_view>

namespace kelmar {

/// Writes `line` and a newline to standard output, unbuffered and in one piece, also to a pipe or a
/// file. If the write fails (the reader has gone, the disk is full), the line is lost and the
/// result is false. May be called from any thread; lines of different threads come in any order.
bool printLine(std::string_view line);

/// The same for standard error.
bool printErrorLine(std::string_view line);

} // namespace kelmar
