#include "tests/support/lines.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/timeouts.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include <pty.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace kelmar {
namespace {

namespace fs = std::filesystem;
using test::linesOf;
using test::ProgramEnd;

const std::string lastLine = "Interrupted before it was done; run it again to remove what is left.";

/// The program, signalled by the administrator's script, which is a step that takes as long as a
/// test wants.
class Interruption : public testing::Test {
protected:
    void SetUp() override {
        tree.everything();
        before = test::contents(tree.paths().home);
    }

    [[nodiscard]] test::Program withScript(const std::string& script) const {
        test::Program program = test::uninstaller({"--uninstall", "--delete-data"}, folder / "t");
        program.runBeside(script, folder / "program");
        return program;
    }

    void expectInterrupted(const ProgramEnd& end, int signal) const {
        EXPECT_EQ(end.status, 128 + signal);
        EXPECT_EQ(end.error, "");
        const std::vector<std::string> lines = linesOf(end.output);
        EXPECT_EQ(lines.back(), lastLine);
        EXPECT_NE(
            end.output.find("Not removed:\n    /Applications/Kelmar.app: it is still there\n"),
            std::string::npos)
            << end.output;
        EXPECT_TRUE(noFolderIsLeft());
        EXPECT_EQ(test::contents(tree.paths().home), before);
    }

    [[nodiscard]] bool noFolderIsLeft() const {
        const fs::directory_iterator entries(tree.paths().temporaryDirectory);
        return std::none_of(begin(entries), end(entries), [](const fs::directory_entry& entry) {
            return entry.path().filename().string().starts_with("kelmar-uninstaller-");
        });
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    std::map<std::string, std::string> before;
};

// What the script does once its parent has been signalled: wait until that has seen it.
const std::string seen = "while ! grep -q 'ShdPnd:.0*$' /proc/$PPID/status; do :; done\n";

TEST_F(Interruption, LetsTheStepUnderWayEndAndListsWhatRemains) {
    for (const auto& [name, number] :
         {std::pair{"INT", SIGINT}, {"HUP", SIGHUP}, {"TERM", SIGTERM}}) {
        SCOPED_TRACE(name);
        const ProgramEnd end = withScript("kill -" + std::string(name) + " $PPID\n" + seen +
                                          "printf 'LOG the step goes on\nDONE\n' >>\"$2\"\n")
                                   .run();
        expectInterrupted(end, number);
        EXPECT_NE(end.output.find("\n    the step goes on\nNot removed:\n"), std::string::npos)
            << end.output;
    }
}

TEST_F(Interruption, ByASecondSignalIsAtOnce) {
    if (test::putsSignalsOff) {
        GTEST_SKIP() << "both signals are handled once the step has ended";
    }
    for (const auto& [name, number] : {std::pair{"INT", SIGINT}, {"TERM", SIGTERM}}) {
        SCOPED_TRACE(name);
        const ProgramEnd end = withScript("kill -HUP $PPID\n" + seen + "sleep 0.3\nkill -" + name +
                                          " $PPID\nprintf 'LOG too late\nDONE\n' >>\"$2\"\n")
                                   .run();
        EXPECT_EQ(end.status, -number);
        EXPECT_EQ(end.output.find("too late"), std::string::npos) << end.output;
    }
}

TEST_F(Interruption, ByAHangupThatComesTwiceIsOne) {
    // From the kernel, and from the shell that ran in the terminal.
    const ProgramEnd end = withScript("kill -HUP $PPID\n" + seen + "kill -HUP $PPID\n" + seen +
                                      "printf 'DONE\n' >>\"$2\"\n")
                               .run();
    expectInterrupted(end, SIGHUP);
}

TEST_F(Interruption, LeavesASignalIgnoredThatItsCallerIgnores) {
    test::Program program = withScript("kill -HUP $PPID\n" + seen + "printf 'DONE\n' >>\"$2\"\n");
    program.inChild = [] { std::signal(SIGHUP, SIG_IGN); }; // as nohup(1) does
    const ProgramEnd end = program.run();
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.output.find("Interrupted"), std::string::npos) << end.output;
    EXPECT_FALSE(fs::exists(tree.paths().services(Scope::me))) << "the run goes on";
}

TEST_F(Interruption, ByCtrlCOnATerminalReachesTheStepAndIsReported) {
    int keyboard = -1;
    int screen = -1;
    ASSERT_EQ(::openpty(&keyboard, &screen, nullptr, nullptr, nullptr), 0);
    test::Program program = withScript("echo LOG ready >>\"$2\"; exec sleep 100\n");
    program.onOutput = [keyboard](const std::string& piece, auto /*time*/) {
        if (piece.find("ready") != std::string::npos) {
            EXPECT_EQ(::write(keyboard, "\x03", 1), 1);
        }
    };
    program.inChild = [screen] {
        ::setsid();
        ::ioctl(screen, TIOCSCTTY, 0);
    };
    const ProgramEnd end = program.run();
    ::close(screen);
    ::close(keyboard);
    EXPECT_FALSE(end.timedOut);
    EXPECT_EQ(end.status, 128 + SIGINT);
    EXPECT_EQ(linesOf(end.output).back(), lastLine);
    EXPECT_TRUE(noFolderIsLeft());
    EXPECT_EQ(test::contents(tree.paths().home), before);
}

TEST_F(Interruption, ANextRunTakesAwayWhatAKilledOneLeft) {
    const ProgramEnd end = withScript("kill -KILL $PPID\n").run();
    EXPECT_EQ(end.status, -SIGKILL);
    ASSERT_FALSE(noFolderIsLeft());
    const test::Program whole = test::uninstaller({"--uninstall", "--delete-data"}, folder / "t");
    EXPECT_EQ(whole.run().status, 0);
    EXPECT_FALSE(noFolderIsLeft()) << "it may be in use";
    for (const auto& entry : fs::directory_iterator(tree.paths().temporaryDirectory)) {
        fs::last_write_time(entry, fs::file_time_type::clock::now() - std::chrono::hours(25));
    }
    EXPECT_EQ(whole.run().output, "Kelmar isn't on this Mac; nothing to remove.\n");
    EXPECT_TRUE(noFolderIsLeft());
}

} // namespace
} // namespace kelmar
