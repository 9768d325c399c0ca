#pragma once

#include <optional>
#include <string>

namespace kelmar {

/// The path of the resource `name` that ships with the program: in the application bundle's
/// resources, or beside the executable where there are no bundles. Absent when it is not there.
std::optional<std::string> resourcePath(const std::string& name);

} // namespace kelmar
