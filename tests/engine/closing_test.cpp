#include "engine/uninstaller.hpp"
#include "tests/support/durations.hpp"
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

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;
using test::Sleeper;

class Closing : public testing::Test {
protected:
    Closing() { engine.emit = transcript.emit(); }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    Uninstaller engine{tree.paths(), {}, {}};
    test::Transcript transcript;
};

TEST(WaitForExit, AnEmptyListIsGoneAtOnce) {
    const auto took = [] {
        return test::timeOf([] {
            EXPECT_TRUE(Uninstaller::waitForExit({}, 10));
            EXPECT_TRUE(Uninstaller::waitForExit({}, 0));
        });
    };
    EXPECT_LT(test::shortestOf(100ms, took), 100ms);
}

TEST(WaitForExit, AProcessThatHasGoneIsSeenWithoutASleep) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::_exit(0);
    }
    ::waitpid(child, nullptr, 0);
    const auto took = [child] {
        return test::timeOf([child] { EXPECT_TRUE(Uninstaller::waitForExit({child}, 10)); });
    };
    EXPECT_LT(test::shortestOf(150ms, took), 150ms);
}

TEST(WaitForExit, AProcessThatStaysIsWaitedForNoLongerThanTheBound) {
    const auto took = [] {
        return test::timeOf([] { EXPECT_FALSE(Uninstaller::waitForExit({::getpid()}, 0.5)); });
    };
    const auto shortest = test::shortestOf(3s, took);
    EXPECT_GE(shortest, 500ms);
    EXPECT_LT(shortest, 3s);
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
    const auto took = [this] {
        Sleeper stubborn(tree.paths().services(Scope::me) + "/bin/worker",
                         Sleeper::ignoring({SIGTERM}));
        stubborn.reapInBackground();
        const auto time =
            test::timeOf([this] { engine.stopProcesses({tree.paths().services(Scope::me)}); });
        EXPECT_TRUE(stubborn.hasEnded());
        return time;
    };
    const auto shortest = test::shortestOf(14s, took);
    EXPECT_GE(shortest, 10s);
    EXPECT_LT(shortest, 14s);
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
