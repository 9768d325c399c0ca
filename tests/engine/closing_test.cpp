#include "engine/uninstaller.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/sleeper.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/transcript.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar {
namespace {

using Lines = std::vector<std::string>;
using std::chrono::seconds;
using test::Sleeper;

std::chrono::steady_clock::time_point now() {
    return std::chrono::steady_clock::now();
}

class Closing : public testing::Test {
protected:
    Closing() { engine.emit = transcript.emit(); }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    Uninstaller engine{tree.paths(), {}, {}};
    test::Transcript transcript;
};

TEST(WaitForExit, AnEmptyListIsGoneAtOnce) {
    const auto start = now();
    EXPECT_TRUE(Uninstaller::waitForExit({}, 10));
    EXPECT_TRUE(Uninstaller::waitForExit({}, 0));
    EXPECT_LT(now() - start, std::chrono::milliseconds(100));
}

TEST(WaitForExit, AProcessThatHasGoneIsSeenWithoutASleep) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    const auto start = now();
    EXPECT_TRUE(Uninstaller::waitForExit({child}, 10));
    EXPECT_LT(now() - start, std::chrono::milliseconds(150));
}

TEST(WaitForExit, AProcessThatStaysIsWaitedForNoLongerThanTheBound) {
    const auto start = now();
    EXPECT_FALSE(Uninstaller::waitForExit({::getpid()}, 0.5));
    EXPECT_GE(now() - start, std::chrono::milliseconds(500));
    EXPECT_LT(now() - start, seconds(3));
    EXPECT_FALSE(Uninstaller::waitForExit({::getpid()}, 0));
}

TEST(WaitForExit, AProcessOfAnotherUserIsStillThere) {
    if (::getuid() != 0) {
        // The first process belongs to root.
        EXPECT_FALSE(Uninstaller::waitForExit({1}, 0));
        return;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(::setuid(12345) == 0 && !Uninstaller::waitForExit({1}, 0) ? 0 : 1);
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST_F(Closing, UnderATestRootNoAppAndNoServiceIsTouched) {
    Inventory inventory;
    inventory.appRunning = true;
    inventory.loadedServices = {"com.kelmar.api"};
    Uninstaller other(tree.paths(), inventory, {});
    other.emit = transcript.emit();
    other.quitKelmar();
    other.stopServices();
    other.resetPermissions();
    EXPECT_EQ(transcript.lines, Lines{});
    EXPECT_TRUE(other.stoppedServices.empty());
}

TEST_F(Closing, ProcessesInsideTheFoldersAreStopped) {
    Sleeper inside(tree.paths().services(Scope::me) + "/bin/worker");
    Sleeper outside(folder / "elsewhere/worker");
    inside.reapInBackground();
    engine.stopProcesses({tree.paths().app(Scope::me), tree.paths().services(Scope::me)});
    EXPECT_EQ(transcript.lines, (Lines{"doing Stopping Kelmar's background processes",
                                       "log Stopped 1 process(es) running from "
                                       "~/Applications/Kelmar.app, ~/Library/Kelmar."}));
    EXPECT_TRUE(inside.hasEnded());
    EXPECT_FALSE(outside.hasEnded());
}

TEST_F(Closing, AProcessThatIgnoresTheSignalIsKilled) {
    Sleeper stubborn(tree.paths().services(Scope::me) + "/bin/worker",
                     Sleeper::ignoring({SIGTERM}));
    stubborn.reapInBackground();
    const auto start = now();
    engine.stopProcesses({tree.paths().services(Scope::me)});
    EXPECT_GE(now() - start, seconds(10));
    EXPECT_LT(now() - start, seconds(14));
    EXPECT_TRUE(stubborn.hasEnded());
}

TEST_F(Closing, WithoutProcessesNothingIsSaid) {
    tree.services(Scope::me);
    engine.stopProcesses({});
    engine.stopProcesses({tree.paths().services(Scope::me)});
    EXPECT_EQ(transcript.lines, Lines{});
}

TEST_F(Closing, AProcessOfAnotherUserIsLeftAlone) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can start another user's process";
    }
    Sleeper foreign(tree.paths().services(Scope::me) + "/bin/worker", Sleeper::asUser(12345));
    engine.stopProcesses({tree.paths().services(Scope::me)});
    EXPECT_EQ(transcript.lines, Lines{});
    EXPECT_FALSE(foreign.hasEnded());
}

TEST_F(Closing, ServicesWhosePropertyListIsGoneStayStoppedWithoutAWord) {
    engine.stoppedServices = {{"com.kelmar.api", folder / "missing.plist"}};
    engine.restartStoppedServices();
    EXPECT_EQ(transcript.lines, Lines{});
}

} // namespace
} // namespace kelmar
