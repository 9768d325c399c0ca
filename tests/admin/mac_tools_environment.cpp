#include "tests/support/mac_userland.hpp"

#include <gtest/gtest.h>

#include <iostream>
#include <memory>

namespace kelmar {
namespace {

/// Lets the tests of this program run with a Mac's own tools where that is asked for.
class MacTools : public testing::Environment {
public:
    void SetUp() override {
        if (!test::MacUserland::isWanted()) {
            return;
        }
        if (const auto reason = test::MacUserland::skipReason()) {
            // Skipped here, no test of the program runs or says so; ctest looks for these words.
            std::cout << "[  SKIPPED ] " << *reason << std::endl;
            GTEST_SKIP() << *reason;
        }
        mounts_ = std::make_unique<test::PrivateMounts>();
        test::MacUserland::install(*mounts_, "");
    }

    void TearDown() override { mounts_.reset(); }

private:
    std::unique_ptr<test::PrivateMounts> mounts_;
};

// The library takes the object over.
[[maybe_unused]] testing::Environment* const macTools =
    testing::AddGlobalTestEnvironment(new MacTools);

} // namespace
} // namespace kelmar
