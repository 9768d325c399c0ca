#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// The command-line front end. Everything it prints goes to standard output, line by line.
namespace kelmar::CommandLineTool {

/// Does what the first of `arguments` that begins with "--" asks for (the arguments come without
/// the program's name) and returns the exit status; absent when none begins so, and the window is
/// to open. Runs on the main thread and returns when all is done.
std::optional<std::int32_t> run(const std::vector<std::string>& arguments);

} // namespace kelmar::CommandLineTool
