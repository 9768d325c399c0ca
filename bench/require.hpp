#pragma once

#include <cstdio>
#include <cstdlib>

namespace kelmar::bench {

/// Ends the run when something is not as a measurement needs it: a figure of something else would
/// say nothing.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "not measured: %s\n", what);
        std::exit(EXIT_FAILURE);
    }
}

} // namespace kelmar::bench
