#pragma once

#include <string>
#include <string_view>

namespace kelmar {

/// Makes `text`, which may hold file names, safe to show: it stays on its line, reads in its own
/// direction, and holds no terminal control. Control characters become their pictures (U+2400 and
/// following); C1 controls, which have none, line separators, direction marks and ill-formed UTF-8
/// become U+FFFD. The result is well-formed.
std::string harmlessText(std::string_view text);

} // namespace kelmar
