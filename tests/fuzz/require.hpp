#pragma once

#include <cstdlib>

namespace kelmar::fuzz {

/// Ends the run, and so reports the input, when a property of the code under test does not hold.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace kelmar::fuzz
