#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// The standard form of the absolute path `path`, by its text alone: without repeated and trailing
/// slashes, "." and "..", which takes the component before it along (above the root it stays
/// there). No link is followed and nothing is looked up. "/" stays "/".
std::string standardised(std::string_view path);

} // namespace kelmar
