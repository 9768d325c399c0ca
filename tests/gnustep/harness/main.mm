#include "tests/gnustep/harness/isolated_process.hpp"
#include "tests/gnustep/harness/test_environment.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#import <Foundation/Foundation.h>

int main(int count, char** arguments) {
    if (const auto status = kelmar::test::runIsolated(arguments)) {
        return *status;
    }
    testing::InitGoogleTest(&count, arguments);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    if (const auto reason = kelmar::test::Screen::skipReason()) {
        std::fprintf(stderr, "%s\n", reason->c_str());
        return EXIT_FAILURE;
    }
    int result = EXIT_FAILURE;
    {
        const kelmar::test::TestEnvironment environment;
        NSAutoreleasePool* const pool = [NSAutoreleasePool new];
        result = RUN_ALL_TESTS();
        [pool drain];
    }
    // Nothing is taken down: the screen is gone by now.
    std::fflush(stdout);
    std::_Exit(result);
}
