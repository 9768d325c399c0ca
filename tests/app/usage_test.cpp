#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelmar {
namespace {

using test::ProgramEnd;

const std::string usage =
    "Usage: \"Kelmar Uninstaller.app/Contents/MacOS/Kelmar Uninstaller\" [option]\n"
    "\n"
    "  (none)                       Open the window.\n"
    "  --scan                       List what Kelmar has on this Mac, with the size of each data "
    "folder.\n"
    "  --uninstall --delete-data    Remove Kelmar and delete every Kelmar data folder.\n"
    "  --uninstall --keep-data      Remove Kelmar and keep its data.\n"
    "\n"
    "An install for all users still asks for an administrator's password, in a window.\n"
    "\n";

class Usage : public testing::Test {
protected:
    [[nodiscard]] ProgramEnd run(const std::vector<std::string>& arguments) const {
        return test::uninstaller(arguments, folder.path()).run();
    }

    void expectUsage(const std::vector<std::string>& arguments, int status) const {
        const ProgramEnd end = run(arguments);
        EXPECT_EQ(end.output, usage) << arguments.front();
        EXPECT_EQ(end.error, "") << arguments.front();
        EXPECT_EQ(end.status, status) << arguments.front();
    }

    test::TemporaryFolder folder;
};

TEST_F(Usage, IsPrintedByHelp) {
    expectUsage({"--help"}, 0);
    expectUsage({"-v", "word", "--help", "word"}, 0);
}

TEST_F(Usage, TheFirstOptionWins) {
    expectUsage({"--help", "--scan"}, 0);
    EXPECT_EQ(run({"--scan", "--help"}).output, "Kelmar isn't on this Mac.\n");
    expectUsage({"--delete-data", "--uninstall"}, 2);
    expectUsage({"--verbose", "--scan"}, 2);
}

TEST_F(Usage, AnUnknownOptionIsAnError) {
    for (const char* const option : {"--verbose", "--", "--scan=x", "--SCAN", "--sca", "--scan ",
                                     "---scan", "--keep-data", "--\xFF", "--\n"}) {
        expectUsage({option}, 2);
    }
}

TEST_F(Usage, UninstallNeedsExactlyOneChoiceOfData) {
    expectUsage({"--uninstall"}, 2);
    expectUsage({"--uninstall", "--delete-data", "--keep-data"}, 2);
    expectUsage({"--uninstall", "--keep-data", "word", "--delete-data"}, 2);
    expectUsage({"--uninstall", "delete-data", "-keep-data"}, 2);
    expectUsage({"--uninstall", "--Delete-Data"}, 2);
}

TEST_F(Usage, TenThousandArgumentsAreTakenInTheirOrder) {
    std::vector<std::string> arguments(10'000, "word");
    EXPECT_EQ(run(arguments).status, 2) << "the window, which is not there";
    arguments[9'000] = "--scan";
    arguments[9'500] = "--help";
    EXPECT_EQ(run(arguments).output, "Kelmar isn't on this Mac.\n");
    arguments.assign(10'000, "--unknown");
    expectUsage(arguments, 2);
}

} // namespace
} // namespace kelmar
