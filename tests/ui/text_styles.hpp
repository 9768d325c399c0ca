#pragma once

#include "ui/look.hpp"

#include <array>

namespace kelmar::test {

inline constexpr std::array everyTextStyle{
    TextStyle::title,   TextStyle::sectionTitle, TextStyle::body,
    TextStyle::callout, TextStyle::size,         TextStyle::log,
};

} // namespace kelmar::test
