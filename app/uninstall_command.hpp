#pragma once

#include "discovery/kelmar_paths.hpp"

#include <cstdint>

namespace kelmar {

/// Removes the product without a question, deleting all of its data folders or none, and prints
/// what is done as it is done. Returns the exit status: 0 when everything went or nothing was
/// there, 1 when something is left over, 3 when the administrator's password was refused, 128 plus
/// the number of a signal that interrupted the run.
std::int32_t uninstall(const KelmarPaths& paths, bool deleteData);

} // namespace kelmar
