#include "system/process/processes.hpp"
#include "system/process/processes_under.hpp"
#include "tests/support/sleeper.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <unistd.h>

namespace kelmar {
namespace {

using test::Sleeper;
using Processes = std::vector<pid_t>;

TEST(ProcessesUnder, FindsWhatRunsInsideAFolder) {
    const test::TemporaryFolder folder;
    const Sleeper inside(folder / "Kelmar.app/Contents/MacOS/Kelmar");
    const Sleeper beside(folder / "Kelmar.app.old/Kelmar");
    EXPECT_EQ(processesUnder({folder / "Kelmar.app"}), Processes{inside.process()});
    EXPECT_EQ(executablePath(inside.process()), inside.path());
}

TEST(ProcessesUnder, AFolderItselfIsNotInsideItself) {
    const test::TemporaryFolder folder;
    const Sleeper sleeper(folder / "Kelmar.app");
    EXPECT_EQ(processesUnder({folder / "Kelmar.app"}), Processes{});
}

TEST(ProcessesUnder, AFolderCountsThroughALinkAsWell) {
    const test::TemporaryFolder folder;
    const Sleeper sleeper(folder / "real/Kelmar");
    std::filesystem::create_symlink("real", folder / "link");
    EXPECT_EQ(processesUnder({folder / "link"}), Processes{sleeper.process()});
}

TEST(ProcessesUnder, AFileRemovedSinceTheStartStillCounts) {
    const test::TemporaryFolder folder;
    const Sleeper sleeper(folder / "app/Kelmar");
    std::filesystem::remove(sleeper.path());
    EXPECT_EQ(processesUnder({folder / "app"}), Processes{sleeper.process()});
}

TEST(ProcessesUnder, ThisProcessIsLeftOut) {
    const std::string self = executablePath(::getpid()).value();
    const Processes all = processIdentifiers();
    EXPECT_EQ(std::count(all.begin(), all.end(), ::getpid()), 1);
    const Processes found = processesUnder({std::filesystem::path(self).parent_path()});
    EXPECT_EQ(std::count(found.begin(), found.end(), ::getpid()), 0);
}

TEST(ProcessesUnder, NoFoldersHoldNoProcesses) {
    EXPECT_EQ(processesUnder({}), Processes{});
    EXPECT_EQ(processesUnder({"/no/such/folder"}), Processes{});
}

TEST(ExecutablePath, OfAProcessThatIsNotThereIsAbsent) {
    EXPECT_EQ(executablePath(0x3FFFFFFF), std::nullopt);
}

} // namespace
} // namespace kelmar
