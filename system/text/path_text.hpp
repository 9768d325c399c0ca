#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// Normalises the absolute path `path` without looking at the file system. Removes repeated and
/// trailing slashes, "." components, and ".." together with the component before it, if there is
/// one. Follows no symlink. "/" stays "/".
std::string standardised(std::string_view path);

} // namespace kelmar
