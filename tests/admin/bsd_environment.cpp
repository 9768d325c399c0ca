#include "tests/admin/bsd_userland.hpp"
#include "tests/support/program.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace kelmar::test {
namespace {

/// Lets every test of this executable that runs the script run it with a Mac's tools.
class MacsTools : public testing::Environment {
public:
    void SetUp() override {
        if (const auto reason = BsdUserland::skipReason()) {
            // The mark by which ctest knows a skipped test; GoogleTest prints it for tests alone.
            GTEST_SKIP() << "[  SKIPPED ] " << *reason;
        }
        userland_ = std::make_unique<BsdUserland>();
        userland_->share(std::filesystem::temp_directory_path());
        userland_->share(std::filesystem::path(KELMAR_SCRIPT).parent_path());
        userland_->takeOverBash();
    }

    void TearDown() override {
        if (userland_ != nullptr) {
            EXPECT_EQ(userland_->refusals(), std::vector<std::string>{});
        }
    }

private:
    std::unique_ptr<BsdUserland> userland_;
};

const testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new MacsTools); // GoogleTest deletes it

TEST(MacsTools, AreWhatTheScriptsTestsRunWith) {
    Program program;
    program.path = "/bin/bash";
    program.arguments = {"-c", "uname; [ -e /proc ] || echo 'no /proc'"};
    EXPECT_EQ(program.run().output, "Darwin\nno /proc\n");
}

} // namespace
} // namespace kelmar::test
