#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// The absolute path `path` in its standard form, by its text alone: repeated and trailing slashes
/// go,
/// "." goes, ".." takes the component before it along (and stays at the root above it). No link is
/// followed and nothing is looked up. "/" stays "/".
std::string standardised(std::string_view path);

} // namespace kelmar
