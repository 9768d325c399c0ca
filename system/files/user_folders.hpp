#pragma once

#include <string>

namespace kelmar {

/// The home folder of the user that the process runs as: from the system's account database, else
/// from the environment, else "/". Not standardised.
std::string homeFolder();

/// The current user's folder for temporary files as the system reports it. Not standardised.
std::string temporaryFolder();

} // namespace kelmar
