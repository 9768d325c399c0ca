#include "tests/gnustep/harness/inner_process.hpp"
#include "tests/gnustep/harness/surroundings.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#import <Foundation/Foundation.h>

int main(int count, char** arguments) {
    if (const auto status = kelmar::test::runInside(arguments)) {
        return *status;
    }
    testing::InitGoogleTest(&count, arguments);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    if (const auto obstacle = kelmar::test::Screen::obstacle()) {
        std::fprintf(stderr, "%s\n", obstacle->c_str());
        return EXIT_FAILURE;
    }
    int result = EXIT_FAILURE;
    {
        const kelmar::test::Surroundings surroundings;
        NSAutoreleasePool* const pool = [NSAutoreleasePool new];
        result = RUN_ALL_TESTS();
        [pool drain];
    }
    // Nothing is taken down: the screen is gone by now.
    std::fflush(stdout);
    std::_Exit(result);
}
