#pragma once

#include <string>

namespace kelmar {

/// Names the calling thread for debuggers and process listings, as far as the system has room for
/// the name.
void nameThisThread(const std::string& name);

} // namespace kelmar
