#pragma once

#include "tests/support/x_server.hpp"

#include <string>
#include <vector>

namespace kelmar::test {

/// The names of the variables in this process's environment by which a desktop tells programs how
/// to look and behave.
std::vector<std::string> desktopVariables();

/// Removes those from this process's environment: it, and what it starts from then on, opens its
/// windows on `server`, outside of any desktop session. Not while other threads run.
void leaveDesktopFor(const XServer& server);

} // namespace kelmar::test
