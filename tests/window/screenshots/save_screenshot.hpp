#pragma once

#include "tests/screen/screen.hpp"

#include <string>

namespace kelmar::test {

/// Writes what is on the screen at a window's place into a PNG file. Whether that worked.
bool saveScreenshot(const std::string& screen, const ScreenWindow& window, const std::string& file);

} // namespace kelmar::test
