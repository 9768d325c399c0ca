#include "system/executables_under.hpp"
#include "system/processes.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar {
namespace {

/// A copy of sleep(1) at a path of its own, running until the end of the test.
class Sleeper {
public:
    explicit Sleeper(std::string path) : path_(std::move(path)) {
        std::filesystem::create_directories(std::filesystem::path(path_).parent_path());
        std::filesystem::copy_file("/bin/sleep", path_);
        std::string name = "sleep";
        std::string time = "600";
        char* arguments[] = {name.data(), time.data(), nullptr};
        EXPECT_EQ(::posix_spawn(&process_, path_.c_str(), nullptr, nullptr, arguments, environ), 0);
    }

    Sleeper(const Sleeper&) = delete;
    Sleeper& operator=(const Sleeper&) = delete;

    ~Sleeper() {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }

    [[nodiscard]] pid_t process() const { return process_; }

    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_;
    pid_t process_ = -1;
};

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
