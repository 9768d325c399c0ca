#pragma once

#include <string>

namespace kelmar {

/// The content of the about panel on platforms that have no panel of their own.
struct About {
    std::string title; ///< of the panel
    std::string name;
    std::string version;

    friend bool operator==(const About&, const About&) = default;
};

About about();

} // namespace kelmar
