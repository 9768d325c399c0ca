#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <unistd.h>

namespace kelmar {
namespace {

using test::ProgramEnd;
using test::uninstaller;

class AsRoot : public testing::Test {
protected:
    void SetUp() override {
        if (::getuid() != 0) {
            GTEST_SKIP() << "what root is told can only be seen as root";
        }
    }
};

TEST_F(AsRoot, WithoutTheVariableEveryStartIsRefused) {
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"--help"}, {"--scan"}, {"--uninstall", "--delete-data"}}) {
        const ProgramEnd end = uninstaller(arguments, std::nullopt).run();
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, "Open Kelmar Uninstaller as yourself, not as root: it asks for an "
                             "administrator's password when it needs one.\n");
    }
}

TEST_F(AsRoot, ThePresenceOfTheVariableIsEnoughToGoOn) {
    for (const char* const value : {"", "/", "relative", "/tmp/t"}) {
        EXPECT_EQ(uninstaller({"--help"}, value).run().status, 0) << value;
    }
}

TEST_F(AsRoot, AnEmptyVariableMeansTheRealMachine) {
    const ProgramEnd end = uninstaller({"--scan"}, "").run();
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "Kelmar isn't on this Mac.\n");
}

/// A start on a machine without any display.
test::Program withoutADisplay(const std::vector<std::string>& arguments, const std::string& root) {
    test::Program program = uninstaller(arguments, root);
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        program.environment[name] = std::nullopt;
    }
    return program;
}

TEST(StartUp, WithoutOptionsAsksForTheWindow) {
    const test::TemporaryFolder folder;
    const std::filesystem::path built = uninstaller({}, {}).path;
    const bool hasWindow = std::filesystem::exists(built.parent_path() / "kelmar-window.so");
    const std::string expected =
        std::string(hasWindow ? "Kelmar Uninstaller finds no display to open its window on. "
                              : "Kelmar Uninstaller can't open its window here: that takes "
                                "kelmar-window.so beside the program, and Qt 6. ") +
        "Use --scan to list what Kelmar has here, or --help for all options.\n";
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"-h"}, {"-scan", "file"}, {""}, {"-"}, {"scan", "help"}}) {
        const ProgramEnd end = withoutADisplay(arguments, folder.path()).run();
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, expected);
    }
}

TEST(StartUp, WithoutEvenAProgramNameWorks) {
    test::Program program = withoutADisplay({}, "/tmp/t");
    const std::string path = program.path;
    program.inChild = [path] {
        char* const none[] = {nullptr};
        ::execv(path.c_str(), none);
    };
    EXPECT_EQ(program.run().status, 2);
}

TEST(StartUp, WithStandardStreamsClosedStillScans) {
    const test::TemporaryFolder folder;
    test::Program program = uninstaller({"--scan"}, folder.path());
    program.inChild = [] {
        ::close(STDIN_FILENO);
        ::close(STDOUT_FILENO);
        ::close(STDERR_FILENO);
    };
    EXPECT_EQ(program.run().status, 0);
}

} // namespace
} // namespace kelmar
