#pragma once

#include "discovery/kelmar_paths.hpp"
#include "system/process/running_applications.hpp"

namespace kelmar {

/// How to recognise the product's running app.
ApplicationIdentity appIdentity(const KelmarPaths& paths);

} // namespace kelmar
