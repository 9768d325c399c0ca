#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

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

TEST(StartUp, WithoutOptionsAsksForTheWindow) {
    const test::TemporaryFolder folder;
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"-h"}, {"-scan", "file"}, {""}, {"-"}, {"scan", "help"}}) {
        const ProgramEnd end = uninstaller(arguments, folder.path()).run();
        EXPECT_EQ(end.status, 2);
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error,
                  "Kelmar Uninstaller has no window on this system. Use --scan to list what "
                  "Kelmar has here, or --help for all options.\n");
    }
}

TEST(StartUp, WithoutEvenAProgramNameWorks) {
    test::Program program = uninstaller({}, "/tmp/t");
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
