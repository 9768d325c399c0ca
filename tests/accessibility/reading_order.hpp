#pragma once

#include "tests/accessibility/accessible.hpp"

#include <string>
#include <vector>

namespace kelmar::test {

/// What a window shows below its menu bar, in the order in which people read it, each as
/// "role: name", with "(on)" and "(disabled)" where that is so. Announcements are not shown.
std::vector<std::string> linesInReadingOrder(const Accessible& window);

} // namespace kelmar::test
