#pragma once

#include "discovery/kelmar_paths.hpp"

namespace kelmar {

/// Scans and prints what was found, to standard output, each line as soon as it is known: a data
/// folder that takes minutes to measure holds back its own line and those after it only.
void printScan(const KelmarPaths& paths);

} // namespace kelmar
