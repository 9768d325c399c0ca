#pragma once

#include "tests/window/screen.hpp"

#include <string>

namespace kelmar::test {

/// Writes what is on the screen at a window's place into a PNG file. Whether that worked.
bool grab(const std::string& screen, const ScreenWindow& window, const std::string& file);

} // namespace kelmar::test
