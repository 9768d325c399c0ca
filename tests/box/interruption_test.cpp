#include "tests/box/uninstall_fixture.hpp"
#include "tests/support/timeouts.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>

#include <pty.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace kelmar {
namespace {

using test::linesOf;
using test::ProgramEnd;

class InterruptionOnAPretendMac : public test::UninstallOnAPretendMac {
protected:
    /// Runs the program, presses Ctrl-C once the file `/box/tmp/ready` exists, and returns how it
    /// ended.
    [[nodiscard]] ProgramEnd pressCtrlCWhenReady() const {
        int keyboard = -1;
        int screen = -1;
        EXPECT_EQ(::openpty(&keyboard, &screen, nullptr, nullptr, nullptr), 0);
        test::Program program = box->uninstaller({"--uninstall", "--delete-data"});
        program.inChild = [screen] {
            ::setsid();
            ::ioctl(screen, TIOCSCTTY, 0);
        };
        std::thread person([this, keyboard] {
            for (const test::Deadline deadline; !deadline.hasPassed();) {
                if (isThere("/box/tmp/ready")) {
                    EXPECT_EQ(::write(keyboard, "\x03", 1), 1);
                    return;
                }
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            }
        });
        ProgramEnd end = program.run();
        person.join();
        ::close(screen);
        ::close(keyboard);
        return end;
    }

    /// Makes a tool send a signal to the program that runs it, when it is called with `word`.
    void signalAt(const std::string& tool, const std::string& word) const {
        const std::string whole = "/box/whole" + tool;
        std::filesystem::create_directories(
            std::filesystem::path(box->outside(whole)).parent_path());
        std::filesystem::copy_file(box->outside(tool), box->outside(whole));
        box->replace(tool, whole + " \"$@\"\nstatus=$?\n[ \"$1\" != " + word +
                               " ] || kill -TERM $PPID\nexit $status\n");
    }
};

TEST_F(InterruptionOnAPretendMac, BeforeAnythingWasRemovedStartsTheServicesAgain) {
    installEverything();
    const Lines all = leftOnTheDisk();
    signalAt("/bin/launchctl", "bootout");
    const ProgramEnd end = uninstall("--delete-data");
    EXPECT_EQ(end.status, 128 + SIGTERM);
    const Lines lines = linesOf(end.output);
    ASSERT_GT(lines.size(), 5U) << end.output;
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 5),
              (Lines{"==> Closing Kelmar and its background services",
                     "    Stopped com.kelmar.api.", "    Started com.kelmar.api again.",
                     "Not removed:", "    /Applications/Kelmar.app: it is still there"}))
        << end.output;
    EXPECT_NE(end.output.find("    com.kelmar.api: the service is still loaded\n"),
              std::string::npos);
    EXPECT_EQ(lines.back(), "Interrupted before it was done; run it again to remove what is left.");
    EXPECT_EQ(leftOnTheDisk(), all);
}

TEST_F(InterruptionOnAPretendMac, AfterSomethingWasRemovedLeavesTheServicesStopped) {
    installForMe();
    box->addService("com.kelmar.worker", "/Users/ann/Library/LaunchAgents/com.kelmar.worker.plist");
    signalAt("/bin/rm", "-rf");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 128 + SIGTERM);
    EXPECT_EQ(end.output.find("again."), std::string::npos) << end.output;
    EXPECT_FALSE(isThere("/Users/ann/Applications/Kelmar.app"));
    EXPECT_TRUE(isThere("/Users/ann/Library/LaunchAgents/com.kelmar.worker.plist"));
}

TEST_F(InterruptionOnAPretendMac, ByCtrlCDismissesThePassword) {
    installEverything();
    const Lines all = leftOnTheDisk();
    box->answerPasswordWith("touch /box/tmp/ready\nexec sleep 100\n");
    const ProgramEnd end = pressCtrlCWhenReady();
    EXPECT_EQ(end.status, 128 + SIGINT);
    EXPECT_NE(end.output.find("    No administrator's password was given; nothing was removed.\n"
                              "    Started com.kelmar.api again.\n"),
              std::string::npos)
        << end.output;
    EXPECT_EQ(leftOnTheDisk(), all);
}

TEST_F(InterruptionOnAPretendMac, ByCtrlCEndsTheAdministratorsPart) {
    box->tree().dataFolder(Scope::allUsers, "CDN", 1000).dataFolder(Scope::me, "Store", 10);
    box->chownToUser("/Users/ann");
    std::filesystem::remove(box->outside("/box/bin/uninstall-as-admin.sh"));
    // Without the trap, bash goes on if Ctrl-C comes while "touch" ends as if there had been none.
    box->set("/box/bin/uninstall-as-admin.sh", "trap 'trap - INT; kill -INT $$' INT\n"
                                               "touch /box/tmp/ready\n"
                                               "for ((each = 0; each < 1000; ++each)); do\n"
                                               "    sleep 0.1\n"
                                               "done\n");
    const ProgramEnd end = pressCtrlCWhenReady();
    EXPECT_FALSE(end.timedOut);
    EXPECT_EQ(end.status, 128 + SIGINT);
    EXPECT_EQ(linesOf(end.output).back(),
              "Interrupted before it was done; run it again to remove what is left.");
    EXPECT_TRUE(isThere("/Users/ann/Kelmar/Store"));
}

} // namespace
} // namespace kelmar
