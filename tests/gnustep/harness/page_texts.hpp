#pragma once

#include "ui/page.hpp"

#include <string>
#include <vector>

namespace kelmar::test {

/// The texts of header and content, in the order in which they are read.
std::vector<std::string> textsAbove(const Page& page);

/// Those of the footer: notes or what is going on, then the buttons.
std::vector<std::string> textsOfFooter(const Footer& footer);

/// The names of the symbols of header and content, in reading order.
std::vector<std::string> symbolsAbove(const Page& page);

} // namespace kelmar::test
