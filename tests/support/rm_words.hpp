#pragma once

#include <string>

namespace kelmar::test {

/// What this machine's /bin/rm says when it cannot remove `path` for `reason`. Coreutils put the
/// name before it as it was called by, "/bin/rm", and newer ones without the folder.
std::string rmRefusal(const std::string& path, const std::string& reason);

} // namespace kelmar::test
