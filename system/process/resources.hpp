#pragma once

#include <optional>
#include <string>

namespace kelmar {

/// The path of the resource `name` that ships with the program: in the application bundle's
/// resources, or beside the executable on systems without bundles. Absent if it does not exist.
std::optional<std::string> resourcePath(const std::string& name);

} // namespace kelmar
