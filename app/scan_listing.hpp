#pragma once

#include "discovery/kelmar_paths.hpp"

namespace kelmar {

/// Scans and prints what was found to standard output, each line as soon as it is known. A data
/// folder that takes minutes to measure delays only its own line and later ones.
void printScan(const KelmarPaths& paths);

} // namespace kelmar
