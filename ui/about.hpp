#pragma once

#include <string>

namespace kelmar {

/// What the panel about the program shows where the platform has none of its own.
struct About {
    std::string title; ///< of the panel
    std::string name;
    std::string version;

    friend bool operator==(const About&, const About&) = default;
};

About about();

} // namespace kelmar
