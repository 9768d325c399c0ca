#pragma once

#include <string>

namespace kelmar {

/// Names the calling thread for debuggers and process listings; cuts the name to the system's
/// limit.
void nameThisThread(const std::string& name);

} // namespace kelmar
