#include "ui/appkit/from_toolkit.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <stdexcept>

#include <unistd.h>

namespace kelmar {
namespace {

/// In C++ alone: gcc's Objective-C runtime lets C++ exceptions through whatever its frames say, so
/// that how they end in those can't be shown here.
TEST(FromToolkit, LetsNoExceptionOut) {
    const auto asTheToolkit = [] {
        try {
            fromToolkit([] { throw std::runtime_error("from a job"); });
        } catch (...) {
            ::_exit(1);
        }
        ::_exit(0);
    };
    EXPECT_EXIT(asTheToolkit(), testing::KilledBySignal(SIGABRT), "from a job");
}

TEST(FromToolkit, RunsTheJobBeforeItReturns) {
    int runs = 0;
    fromToolkit([&runs] { ++runs; });
    EXPECT_EQ(runs, 1);
}

} // namespace
} // namespace kelmar
