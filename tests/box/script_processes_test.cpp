#include "tests/box/script_fixture.hpp"

#include <algorithm>

namespace kelmar {
namespace {

using test::BackgroundProgram;
using test::Box;
using test::linesOf;

/// Which processes root ends, and which not.
class ScriptAndProcesses : public test::ScriptOnAPretendMac {
protected:
    [[nodiscard]] static bool contains(const Lines& lines, const std::string& line) {
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }
};

TEST_F(ScriptAndProcesses, OneThatRunsFromInsideIsStoppedWhateverItCallsItself) {
    const auto bare = startAs("worker", "/Library/Kelmar/bin/worker", somebodyElse);
    const auto relative = startAs("./worker", "/Library/Kelmar/bin/other", Box::user);
    const auto foreign = startAs("/usr/bin/login", "/Applications/Kelmar.app/x", somebodyElse);
    const Lines lines = run({"--all-users"});
    EXPECT_TRUE(contains(lines, "LOG Stopped 3 process(es) of Kelmar for all users."));
    for (const auto* const program : {&bare, &relative, &foreign}) {
        EXPECT_FALSE(isRunning(**program));
    }
}

TEST_F(ScriptAndProcesses, OneThatOnlyCallsItselfByKelmarsPathIsLeftAlone) {
    const auto pretender = startAs("/Library/Kelmar/bin/worker", "/usr/local/bin/other", 0);
    const auto beside = startAs("worker", "/Library/Kelmar.old/bin/worker", somebodyElse);
    EXPECT_EQ(run({"--all-users"}), Lines{"DONE"});
    EXPECT_TRUE(isRunning(*pretender));
    EXPECT_TRUE(isRunning(*beside));
}

TEST_F(ScriptAndProcesses, OneWhoseNameHoldsALineEndIsStopped) {
    const auto program = startAs("worker", "/Library/Kelmar/bin/a\nb", somebodyElse);
    const Lines lines = run({"--all-users"});
    EXPECT_TRUE(contains(lines, "LOG Stopped 1 process(es) of Kelmar for all users."));
    EXPECT_FALSE(isRunning(*program));
}

TEST_F(ScriptAndProcesses, OthersProcessesInAHomeAreStoppedWithIt) {
    box->chownToUser("/Users/ann");
    const auto foreign = startAs("worker", "/Users/ann/Library/Kelmar/bin/worker", somebodyElse);
    const auto inShared = startAs("worker", "/Library/Kelmar/bin/worker", somebodyElse);
    const Lines lines = run({"--home", "/Users/ann"});
    EXPECT_TRUE(contains(lines, "LOG Stopped 1 process(es) of Kelmar in /Users/ann."));
    EXPECT_FALSE(isRunning(*foreign));
    EXPECT_TRUE(isRunning(*inShared));
}

TEST_F(ScriptAndProcesses, AnUninstallerInsideTheAppIsNotEndedByItsOwnScript) {
    box->tree().app(Scope::allUsers, "4.2").services(Scope::allUsers);
    const std::string helpers = "/Applications/Kelmar.app/Contents/Helpers";
    std::filesystem::copy(box->outside("/box/bin"), box->outside(helpers));
    test::Program program = box->uninstaller({"--uninstall", "--keep-data"});
    program.path = helpers + "/kelmar-uninstaller";
    const test::ProgramEnd end = program.run();
    EXPECT_EQ(end.status, 0) << end.output;
    EXPECT_NE(end.output.find(" running: it started Kelmar Uninstaller.\n"), std::string::npos)
        << end.output;
    EXPECT_FALSE(isThere("/Applications/Kelmar.app"));
    EXPECT_EQ(linesOf(end.output).back(), "Kelmar has been removed.");
}

TEST_F(ScriptAndProcesses, AnAgentFromAnothersOwnHomeStaysLoaded) {
    box->tree().agents(Scope::allUsers);
    const test::Sleeper& loggedIn = box->start("/usr/local/bin/session", somebodyElse);
    const std::string theirs = "/box/services/gui:502:com.kelmar.api";
    const std::string ours = "/box/services/gui:502:com.kelmar.worker";
    box->set(theirs, "/Users/bob/Library/LaunchAgents/com.kelmar.api.plist");
    box->set(ours, "/Library/LaunchAgents/com.kelmar.worker.plist");
    const Lines lines = run({"--all-users"});
    EXPECT_GT(loggedIn.process(), 0);
    EXPECT_TRUE(contains(lines, "LOG Stopped com.kelmar.worker (user 502)."));
    EXPECT_TRUE(isThere(theirs));
    EXPECT_FALSE(isThere(ours));
}

} // namespace
} // namespace kelmar
