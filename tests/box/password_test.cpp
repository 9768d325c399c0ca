#include "admin/password_prompt_runner.hpp"
#include "tests/box/uninstall_fixture.hpp"

#include <fstream>
#include <sstream>

namespace kelmar {
namespace {

using test::Box;
using test::linesOf;
using test::ProgramEnd;

/// With the real sudo, and a real user with a real password.
class Password : public test::UninstallOnAPretendMac {
protected:
    /// One shared folder is all that is installed, so that only the administrator has work.
    void SetUp() override {
        UninstallOnAPretendMac::SetUp();
        if (!IsSkipped()) {
            box->tree().dataFolder(Scope::allUsers, "CDN", 1000);
        }
    }

    void expectCancelled() const {
        const ProgramEnd end = uninstall("--delete-data");
        EXPECT_EQ(end.status, 3);
        EXPECT_EQ(linesOf(end.output),
                  (Lines{"==> Deleting the shared Kelmar data",
                         "    No administrator's password was given; nothing was removed.",
                         "Cancelled at the administrator password prompt; nothing was removed."}))
            << "a refusal needs no other words";
        EXPECT_TRUE(isThere("/Users/Shared/@Kelmar/CDN"));
        EXPECT_TRUE(std::filesystem::is_empty(box->outside("/box/tmp")));
    }

    void expectFailed(const std::string& reason) const {
        const ProgramEnd end = uninstall("--delete-data");
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(linesOf(end.output), (Lines{"==> Deleting the shared Kelmar data",
                                              "Not removed:", "    Administrator step: " + reason,
                                              "    /Users/Shared/@Kelmar/CDN: it is still there"}));
    }

    void replaceScript(const std::string& text) const {
        std::filesystem::remove(box->outside("/box/bin/uninstall-as-admin.sh"));
        box->set("/box/bin/uninstall-as-admin.sh", text);
    }
};

TEST_F(Password, TheRightOneRunsTheScriptAsRoot) {
    const ProgramEnd end = uninstall("--delete-data");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(linesOf(end.output),
              (Lines{"==> Deleting the shared Kelmar data", "    Removed /Users/Shared/@Kelmar/CDN",
                     "Kelmar has been removed."}));
}

TEST_F(Password, TheReasonIsWhatThePromptShows) {
    box->answerPasswordWith("printf '%s' \"$1\" >/box/tmp/prompt\necho '" +
                            std::string(Box::password) + "'\n");
    EXPECT_EQ(uninstall("--delete-data").status, 0);
    std::ostringstream prompt;
    prompt << std::ifstream(box->outside("/box/tmp/prompt")).rdbuf();
    EXPECT_EQ(prompt.str(),
              "Kelmar Uninstaller needs an administrator's password to delete the Kelmar data "
              "shared by all users of this Mac.");
}

TEST_F(Password, AWrongOneThreeTimesIsARefusal) {
    box->answerPasswordWith("echo wrong\n");
    expectCancelled();
}

TEST_F(Password, AnEmptyAnswerIsARefusal) {
    box->answerPasswordWith("exit 0\n");
    expectCancelled();
}

TEST_F(Password, ADismissedPromptIsARefusal) {
    box->answerPasswordWith("exit 1\n");
    expectCancelled();
}

TEST_F(Password, APromptThatIsKilledIsARefusal) {
    box->answerPasswordWith("kill -KILL $$\n");
    expectCancelled();
}

TEST_F(Password, TheFirstInstalledProgramAsksWhenNoneIsChosen) {
    box->replace("/usr/bin/ssh-askpass", std::string("echo '") + Box::password + "'\n");
    test::Program program = box->uninstaller({"--uninstall", "--delete-data"});
    program.environment["SUDO_ASKPASS"] = std::nullopt;
    EXPECT_EQ(program.run().status, 0);
}

TEST_F(Password, WithoutSudoTheStepFails) {
    std::filesystem::remove(box->outside("/usr/bin/sudo"));
    expectFailed("/usr/bin/sudo: No such file or directory");
}

TEST_F(Password, AScriptThatFailsSaysSoInItsOwnWords) {
    replaceScript("echo '  some words' >&2\nexit 7\n");
    expectFailed("some words");
}

TEST_F(Password, AScriptThatFailsWithoutAWordIsToldByItsStatus) {
    replaceScript("exit 7\n");
    expectFailed("error 7");
}

TEST_F(Password, AScriptThatDiesHalfWayFails) {
    replaceScript("echo LOG begun >>\"$2\"\nkill -KILL $$\n");
    const ProgramEnd end = uninstall("--delete-data");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(linesOf(end.output).at(1), "    begun");
    EXPECT_EQ(end.output.find("root's command"), std::string::npos)
        << "the marker is nobody's word";
}

TEST_F(Password, AScriptThatIsNotThereIsMissingFromTheProgram) {
    std::filesystem::remove(box->outside("/box/bin/uninstall-as-admin.sh"));
    const ProgramEnd end = uninstall("--delete-data");
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(linesOf(end.output),
              (Lines{"==> Deleting the shared Kelmar data", "Not removed:",
                     "    uninstall-as-admin.sh: missing from Kelmar Uninstaller.app",
                     "    /Users/Shared/@Kelmar/CDN: it is still there"}));
}

} // namespace
} // namespace kelmar
