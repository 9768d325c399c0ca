#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelmar {

/// The path of a service's property list in `output`, printed by `launchctl print` (launchctl(1)):
/// what follows "path = " on the first line that begins so, blanks aside. Absent when no line does.
std::optional<std::string> propertyListPath(std::string_view output);

} // namespace kelmar
