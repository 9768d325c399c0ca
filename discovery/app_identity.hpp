#pragma once

#include "discovery/kelmar_paths.hpp"
#include "system/process/running_applications.hpp"

namespace kelmar {

/// How the product's app is told from others while it runs.
ApplicationIdentity appIdentity(const KelmarPaths& paths);

} // namespace kelmar
