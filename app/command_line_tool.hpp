#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The command-line front end. Everything it prints goes to standard output, line by line.
namespace kelmar::CommandLineTool {

/// Runs the command that the first of `arguments` beginning with "--" names, and returns the exit
/// status. Absent if there is no such argument: the caller then opens the window. `arguments`
/// excludes the program's name. Call it on the main thread; it blocks until the command is done.
std::optional<std::int32_t> run(const std::vector<std::string>& arguments);

} // namespace kelmar::CommandLineTool
