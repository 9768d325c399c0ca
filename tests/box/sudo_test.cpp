#include "tests/box/uninstall_fixture.hpp"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/prctl.h>

namespace kelmar {
namespace {

using test::Box;
using test::linesOf;
using test::ProgramEnd;

/// What the real sudo prints besides its prompt. The user has an installation of their own, and
/// there is shared data: the own installation shows whether the run continued after the shared
/// data's step.
class Sudo : public test::UninstallOnAPretendMac {
protected:
    void SetUp() override {
        UninstallOnAPretendMac::SetUp();
        if (!IsSkipped()) {
            installForMe();
            box->tree().dataFolder(Scope::allUsers, "CDN", 1000);
        }
    }

    void setSudoers(const std::string& text) const {
        const std::string file = box->outside("/etc/sudoers.d/ann");
        std::filesystem::remove(file);
        std::ofstream(file) << text;
        std::filesystem::permissions(file, std::filesystem::perms(0440));
    }

    /// Nothing was removed, and these lines precede the one in the log that says so.
    void expectCancelled(const ProgramEnd& end, const Lines& words) const {
        EXPECT_EQ(end.status, 3);
        Lines expected = words;
        expected.emplace_back("    No administrator's password was given; nothing was removed.");
        expected.emplace_back(
            "Cancelled at the administrator password prompt; nothing was removed.");
        const Lines lines = linesOf(end.output);
        const auto step =
            std::find(lines.begin(), lines.end(), "==> Deleting the shared Kelmar data");
        ASSERT_NE(step, lines.end()) << end.output;
        EXPECT_EQ(Lines(step + 1, lines.end()), expected);
        EXPECT_TRUE(isThere("/Users/ann/Applications/Kelmar.app"));
        EXPECT_TRUE(isThere("/Users/Shared/@Kelmar/CDN"));
    }

    /// The step failed for this reason, and the run continued.
    void expectFailed(const ProgramEnd& end, const std::string& reason) const {
        EXPECT_EQ(end.status, 1);
        const std::size_t at = end.output.find("    Administrator step: ");
        ASSERT_NE(at, std::string::npos) << end.output;
        EXPECT_NE(end.output.find(reason, at), std::string::npos) << end.output;
        EXPECT_FALSE(isThere("/Users/ann/Applications/Kelmar.app"));
        EXPECT_TRUE(isThere("/Users/Shared/@Kelmar/CDN"));
    }

    [[nodiscard]] test::Program program() const {
        return box->uninstaller({"--uninstall", "--delete-data"});
    }
};

TEST_F(Sudo, ThatAllowsSomethingElseRefuses) {
    setSudoers("ann ALL=(ALL) /bin/true\n");
    const ProgramEnd end = program().run();
    EXPECT_EQ(end.status, 3);
    EXPECT_NE(end.output.find("    Sorry, user ann is not allowed to execute '/bin/bash -p -c "),
              std::string::npos)
        << end.output;
    EXPECT_TRUE(isThere("/Users/ann/Applications/Kelmar.app"));
    EXPECT_TRUE(isThere("/Users/Shared/@Kelmar/CDN"));
}

TEST_F(Sudo, ThatDoesNotKnowTheUserRefusesInItsWords) {
    setSudoers("");
    expectCancelled(program().run(), {"    ann is not in the sudoers file."});
}

TEST_F(Sudo, WithoutAProgramThatAsksSaysSo) {
    test::Program withoutOne = program();
    withoutOne.environment["SUDO_ASKPASS"] = std::nullopt;
    expectCancelled(withoutOne.run(), {"    sudo: no askpass program specified, try setting "
                                       "SUDO_ASKPASS"});
    withoutOne.environment["SUDO_ASKPASS"] = "/no/such/program";
    expectCancelled(withoutOne.run(), {"    /no/such/program: No such file or directory"});
}

TEST_F(Sudo, ThatIsNotGivenItsRightsHasAskedNobody) {
    test::Program tied = program();
    tied.inChild = [] { ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0); };
    expectFailed(tied.run(), "no new privileges");
}

TEST_F(Sudo, ThatCannotReadItsRulesHasAskedNobody) {
    setSudoers("ann ALL=(ALL) ALL\n");
    const std::string rules = box->outside("/etc/sudoers");
    std::filesystem::permissions(rules, std::filesystem::perms(0666));
    expectFailed(program().run(), "/etc/sudoers is world writable");
}

TEST_F(Sudo, NeitherUsesNorKeepsAPassword) {
    // The password is then cached for every command of this user for minutes.
    setSudoers("Defaults timestamp_type=global\nann ALL=(ALL) ALL\n");
    test::Program other = program();
    other.path = "/usr/bin/sudo";
    other.arguments = {"-A", "true"};
    ASSERT_EQ(other.run().status, 0);
    other.arguments = {"-n", "true"};
    ASSERT_EQ(other.run().status, 0) << "it is kept for others";
    box->answerPasswordWith("exit 1\n");
    expectCancelled(program().run(), {});

    other.arguments = {"-K"};
    ASSERT_EQ(other.run().status, 0);
    box->answerPasswordWith(std::string("echo '") + Box::password + "'\n");
    EXPECT_EQ(program().run().status, 0);
    other.arguments = {"-n", "true"};
    EXPECT_EQ(other.run().status, 1) << "ours is not kept for others";
}

TEST_F(Sudo, CannotBeSpokenForByTheProgramThatAsks) {
    // The askpass program runs as the user, sees the whole command line, and shares standard error.
    box->answerPasswordWith("tr '\\0' '\\n' </proc/$PPID/cmdline >&2\n"
                            "tr '\\0' '\\n' </proc/$PPID/cmdline\nexit 1\n");
    const ProgramEnd end = program().run();
    EXPECT_EQ(end.status, 3) << end.output;
    EXPECT_TRUE(isThere("/Users/ann/Applications/Kelmar.app"));
}

} // namespace
} // namespace kelmar
