#include "tests/gnustep/harness/run_loop.hpp"
#include "tests/gnustep/harness/test_environment.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <thread>

namespace kelmar {
namespace {

/// The application as a program of its own: it opens its window, and ends with it.
class ApplicationProgram : public testing::Test {
protected:
    ApplicationProgram() {
        program.path = KELMAR_WINDOW_PROGRAM;
        program.environment["KELMAR_UNINSTALLER_TEST_ROOT"] = folder.path();
        program.timeout = std::chrono::seconds(30);
        test::MacTree(folder.path()).everything();
        before = test::contents(folder.path());
        runner = std::thread([this] { end = program.run(); });
    }

    ~ApplicationProgram() override {
        if (runner.joinable()) {
            runner.join();
        }
    }

    [[nodiscard]] static const test::Screen& screen() {
        return test::TestEnvironment::current().screen();
    }

    [[nodiscard]] static std::optional<test::ScreenWindow> window() {
        const std::vector<test::ScreenWindow> all = screen().windows();
        const auto found = std::find_if(all.begin(), all.end(), [](const auto& each) {
            return each.title == "Kelmar Uninstaller" && each.place.height > 500;
        });
        return found == all.end() ? std::nullopt : std::optional(*found);
    }

    void expectToHaveEndedWell() {
        runner.join();
        EXPECT_EQ(end.status, 0) << end.error;
        EXPECT_FALSE(end.timedOut);
        EXPECT_EQ(test::contents(folder.path()), before) << "nobody has asked for anything";
    }

    test::TemporaryFolder folder;
    test::Program program;
    std::map<std::string, std::string> before;
    test::ProgramEnd end;
    std::thread runner;
};

TEST_F(ApplicationProgram, OpensItsWindowAndEndsWithIt) {
    ASSERT_TRUE(test::eventually([] { return window().has_value(); }));
    test::runLoopFor(0.5);
    screen().askToClose(*window());
    expectToHaveEndedWell();
}

} // namespace
} // namespace kelmar
