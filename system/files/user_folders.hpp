#pragma once

#include <string>

namespace kelmar {

/// The current user's home folder, as the system's account database has it for the user that the
/// process runs as; where the database has none, as the environment does; else "/". Not
/// standardised.
std::string homeFolder();

/// The current user's folder for temporary files as the system reports it. Not standardised.
std::string temporaryFolder();

} // namespace kelmar
