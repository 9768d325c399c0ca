#pragma once

#include <string>

namespace kelmar {

/// Prefix of a line that belongs to the one above it.
inline const std::string indent = "    ";

/// Prints `line`, which may hold file names and the output of tools, to standard output, as
/// `printLine` does. On a terminal, characters that would set its title, turn text around or
/// imitate another line are first made visible (`harmlessText`); a file or a pipe gets the line
/// unchanged. Returns false if the write failed: the reader has gone, or the disk is full.
bool print(const std::string& line);

} // namespace kelmar
