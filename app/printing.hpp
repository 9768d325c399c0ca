#pragma once

#include <string>

namespace kelmar {

/// What a line begins with that belongs to the one above it.
inline const std::string indent = "    ";

/// Prints `line`, which may hold names of files and the words of tools, to standard output, as
/// `printLine` does. On a terminal, what would set its title, turn text around or look like another
/// line is made visible first (`harmlessText`); a file or a pipe gets the line as it is. False when
/// it could not be written: the reader has gone, or the disk is full.
bool print(const std::string& line);

} // namespace kelmar
