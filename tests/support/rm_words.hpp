#pragma once

#include <string>

namespace kelmar::test {

/// What this machine's /bin/rm prints when it cannot remove `path` for `reason`. Coreutils begin
/// with the name it was called by, "/bin/rm"; newer ones omit the folder.
std::string rmRefusal(const std::string& path, const std::string& reason);

} // namespace kelmar::test
