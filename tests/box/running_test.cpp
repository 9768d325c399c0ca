#include "tests/box/uninstall_fixture.hpp"

#include <atomic>
#include <chrono>
#include <csignal>
#include <functional>
#include <thread>

#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelmar {
namespace {

using test::linesOf;
using test::ProgramEnd;

/// The app and its services run while they are uninstalled.
class Running : public test::UninstallOnAPretendMac {
protected:
    static constexpr const char* myApp = "/Users/ann/Applications/Kelmar.app/Contents/MacOS/Kelmar";
    static constexpr const char* everybodysApp = "/Applications/Kelmar.app/Contents/MacOS/Kelmar";
    static constexpr uid_t somebodyElse = 502;

    [[nodiscard]] test::Sleeper& startApp(const char* path, uid_t user,
                                          const std::vector<int>& ignoring = {}) const {
        std::filesystem::remove(box->outside(path));
        return box->start(path, user, ignoring);
    }
};

TEST_F(Running, AnAppThatAnswersTheQuitRequestIsClosed) {
    installForMe();
    test::Sleeper& app = startApp(myApp, test::Box::user);
    box->chownToUser("/Users/ann/Applications");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(linesOf(end.output).at(1), "    Closed Kelmar.");
    EXPECT_TRUE(app.hasEnded());
    EXPECT_EQ(end.status, 0);
}

TEST_F(Running, AnAppThatDoesNotAnswerIsTerminated) {
    installForMe();
    test::Sleeper& app = startApp(myApp, test::Box::user, {SIGINT});
    test::Sleeper& helper =
        box->start("/Users/ann/Applications/Kelmar.app/Contents/Helpers/Helper", test::Box::user);
    box->chownToUser("/Users/ann/Applications");
    EXPECT_EQ(linesOf(uninstall("--keep-data").output).at(1),
              "    Closed Kelmar (it did not answer the quit request).");
    EXPECT_TRUE(app.hasEnded());
    EXPECT_TRUE(helper.hasEnded());
}

/// Makes this process the parent of its children's orphans (subreaper), and reaps one of them when
/// it ends.
class Orphan {
public:
    Orphan() { ::prctl(PR_SET_CHILD_SUBREAPER, 1); }

    Orphan(const Orphan&) = delete;
    Orphan& operator=(const Orphan&) = delete;

    ~Orphan() {
        if (*process_ != 0 && !hasEnded()) {
            ::kill(*process_, SIGKILL); // only when the test has failed
        }
        over_ = true;
        reaper_.join();
        ::munmap(process_, sizeof(pid_t));
    }

    /// Called in a test's child before exec: forks, and both processes become the program.
    [[nodiscard]] std::function<void()> fork() const {
        return [process = process_] {
            const pid_t child = ::fork();
            if (child > 0) {
                *process = child;
            }
        };
    }

    [[nodiscard]] bool hasEnded() const { return *process_ != 0 && ::kill(*process_, 0) != 0; }

private:
    void reap() const {
        while (!over_ && (*process_ == 0 || ::waitpid(*process_, nullptr, WNOHANG) != *process_)) {
            std::this_thread::sleep_for(
                std::chrono::milliseconds(5)); // it is our child once its parent has ended
        }
    }

    // In memory shared with the child that forks.
    pid_t* process_ = static_cast<pid_t*>(
        ::mmap(nullptr, sizeof(pid_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    std::atomic<bool> over_{false};
    std::thread reaper_{[this] { reap(); }};
};

TEST_F(Running, WhatTheAppForkedIsClosedWithIt) {
    installForMe();
    Orphan forked;
    std::filesystem::remove(box->outside(myApp));
    test::Sleeper& app = box->start(myApp, test::Box::user, {}, forked.fork());
    box->chownToUser("/Users/ann/Applications");
    EXPECT_EQ(linesOf(uninstall("--keep-data").output).at(1), "    Closed Kelmar.");
    EXPECT_TRUE(app.hasEnded());
    EXPECT_TRUE(forked.hasEnded());
}

TEST_F(Running, AnAppThatIgnoresEverySignalIsForcedToClose) {
    installForMe();
    test::Sleeper& app = startApp(myApp, test::Box::user, {SIGINT, SIGTERM});
    box->chownToUser("/Users/ann/Applications");
    EXPECT_EQ(linesOf(uninstall("--keep-data").output).at(1), "    Forced Kelmar to close.");
    EXPECT_TRUE(app.hasEnded());
}

TEST_F(Running, AServiceOutsideTheAppIsStopped) {
    installForMe();
    test::Sleeper& worker =
        box->start("/Users/ann/Library/Kelmar/bin/other-worker", test::Box::user);
    box->chownToUser("/Users/ann/Library/Kelmar");
    EXPECT_EQ(
        linesOf(uninstall("--keep-data").output).at(1),
        "    Stopped 1 process(es) running from ~/Applications/Kelmar.app, ~/Library/Kelmar.");
    EXPECT_TRUE(worker.hasEnded());
}

TEST_F(Running, AProcessOfSomebodyElseInMyAppIsLeftAlone) {
    installForMe();
    test::Sleeper& foreign = startApp(myApp, somebodyElse);
    box->chownToUser("/Users/ann/Applications");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(linesOf(end.output).at(1), "    Reset Kelmar's privacy permissions.");
    EXPECT_FALSE(foreign.hasEnded());
}

TEST_F(Running, TheScriptStopsEverybodysProcessesOfAnInstallationForAllUsers) {
    box->tree().app(Scope::allUsers, "4.2").services(Scope::allUsers);
    test::Sleeper& foreign = startApp(everybodysApp, somebodyElse);
    test::Sleeper& stubborn = box->start("/Library/Kelmar/bin/stubborn", somebodyElse, {SIGTERM});
    test::Sleeper& beside = box->start("/Library/Kelmar.other/bin/worker", somebodyElse);
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 0);
    const Lines lines = linesOf(end.output);
    EXPECT_EQ(std::count(lines.begin(), lines.end(),
                         "    Stopped 2 process(es) of Kelmar for all users."),
              1)
        << end.output;
    EXPECT_TRUE(foreign.hasEnded());
    EXPECT_TRUE(stubborn.hasEnded());
    EXPECT_FALSE(beside.hasEnded());
}

TEST_F(Running, AgentsOfSomebodyElseAreBootedOutByTheScript) {
    box->tree().agents(Scope::allUsers);
    test::Sleeper& loggedIn = box->start("/usr/local/bin/session", somebodyElse);
    box->set("/box/services/gui:502:com.kelmar.api", "/Library/LaunchAgents/com.kelmar.api.plist");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 0);
    EXPECT_NE(end.output.find("    Stopped com.kelmar.api (user 502).\n"), std::string::npos)
        << end.output;
    EXPECT_FALSE(isThere("/box/services/gui:502:com.kelmar.api"));
    EXPECT_FALSE(loggedIn.hasEnded());
}

} // namespace
} // namespace kelmar
