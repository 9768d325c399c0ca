#pragma once

#include "discovery/kelmar_paths.hpp"

#include <cstdint>

namespace kelmar {

/// Removes the product without asking, deletes all of its data folders or none, and prints each
/// step as it happens. Returns the exit status: 0 if everything was removed or nothing was there, 1
/// if something is left, 3 if the administrator's password was refused, 128 plus the number of a
/// signal that interrupted the run.
std::int32_t uninstall(const KelmarPaths& paths, bool deleteData);

} // namespace kelmar
