#include "tests/gnustep/harness/isolated_process.hpp"

#include <gtest/gtest.h>

/// For tests without a window.
int main(int count, char** arguments) {
    if (const auto status = kelmar::test::runIsolated(arguments)) {
        return *status;
    }
    testing::InitGoogleTest(&count, arguments);
    return RUN_ALL_TESTS();
}
