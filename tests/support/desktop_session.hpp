#pragma once

#include "tests/support/x_server.hpp"

#include <string>
#include <vector>

namespace kelmar::test {

/// The names of the variables in this process's environment that tell programs how to look and
/// behave on a desktop.
std::vector<std::string> desktopVariables();

/// Removes those variables from this process's environment. This process and its later children
/// then open their windows on `server`, outside of any desktop session. Not thread-safe.
void leaveDesktopFor(const XServer& server);

} // namespace kelmar::test
