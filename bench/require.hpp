#pragma once

#include <cstdio>
#include <cstdlib>

namespace kelmar::bench {

/// Ends the run if a precondition of a measurement does not hold: the figure would mean nothing.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "not measured: %s\n", what);
        std::exit(EXIT_FAILURE);
    }
}

} // namespace kelmar::bench
