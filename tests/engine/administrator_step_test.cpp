#include "engine/uninstaller.hpp"
#include "tests/engine/samples.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/scripted_runner.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/transcript.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace kelmar {
namespace {

namespace fs = std::filesystem;
using test::installed;
using Lines = std::vector<std::string>;
using Arguments = std::optional<std::vector<std::string>>;
using Failures = std::vector<Uninstaller::Failure>;
using AdministratorOutcome = Uninstaller::AdministratorOutcome;

DataRoot dataRoot(Scope scope, const std::string& path) {
    return {
        scope, path, {{"Store", "", path + "/Store", {}}, {"Logs", "", path + "/Logs", {}}}, {}};
}

const KelmarPaths real{"", "/home/ann", "/tmp", {}};
const std::string reasonStart = "Kelmar Uninstaller needs an administrator's password to ";

Inventory withData() {
    Inventory inventory;
    inventory.dataRoots = {dataRoot(Scope::me, "/home/ann/Kelmar"),
                           dataRoot(Scope::allUsers, "/Users/Shared/@Kelmar")};
    return inventory;
}

TEST(AdministratorArguments, AreAbsentWhenThereIsNothingToDo) {
    Inventory inventory = withData();
    inventory.installations = {installed(Scope::me)};
    const std::set<std::string> mine{"/home/ann/Kelmar/Store"};
    EXPECT_EQ(Uninstaller(real, inventory, mine).administratorArguments(), std::nullopt);
    EXPECT_EQ(Uninstaller(test::pathsUnder("/t"), inventory, mine).administratorArguments(),
              std::nullopt);
}

TEST(AdministratorArguments, NameChosenSharedFoldersInOrder) {
    const Uninstaller engine(real, withData(),
                             {"/Users/Shared/@Kelmar/Logs", "/Users/Shared/@Kelmar/Store",
                              "/home/ann/Kelmar/Logs", "/Users/Shared/@Kelmar/Models"});
    EXPECT_EQ(engine.administratorArguments(),
              (Arguments{{"--shared-data", "/Users/Shared/@Kelmar/Store", "--shared-data",
                          "/Users/Shared/@Kelmar/Logs"}}));
    EXPECT_EQ(engine.administratorReason(),
              reasonStart + "delete the Kelmar data shared by all users of this Mac.");
}

TEST(AdministratorArguments, NameTheHomeForFilesOfTheSystem) {
    Inventory inventory;
    inventory.installations = {installed(Scope::me, true)};
    const Uninstaller engine(real, inventory, {});
    EXPECT_EQ(engine.administratorArguments(), (Arguments{{"--home", "/home/ann"}}));
    EXPECT_EQ(engine.administratorReason(),
              reasonStart + "remove files of Kelmar that belong to the system.");
}

TEST(AdministratorArguments, OfEverythingStandInTheirOrder) {
    Inventory inventory = withData();
    inventory.installations = {installed(Scope::allUsers), installed(Scope::me, true)};
    const Uninstaller engine(test::pathsUnder("/t"), inventory, {"/Users/Shared/@Kelmar/Logs"});
    EXPECT_EQ(engine.administratorArguments(),
              (Arguments{{"--all-users", "--shared-data", "/Users/Shared/@Kelmar/Logs", "--home",
                          "/t/home", "--test-root", "/t/system"}}));
    EXPECT_EQ(engine.administratorReason(),
              reasonStart + "remove Kelmar, which is installed for all users of this Mac.");
}

TEST(MySelectedData, IsThatOfTheUsersOwnRoot) {
    const Uninstaller engine(real, withData(),
                             {"/home/ann/Kelmar/Logs", "/Users/Shared/@Kelmar/Store"});
    ASSERT_EQ(engine.mySelectedData().size(), 1U);
    EXPECT_EQ(engine.mySelectedData()[0].path, "/home/ann/Kelmar/Logs");
}

class AdministratorStep : public testing::Test {
protected:
    AdministratorOutcome run(const test::ScriptedRunner::Behaviour& behaviour,
                             const std::optional<KelmarPaths>& other = {}) {
        runner = std::make_shared<test::ScriptedRunner>(behaviour);
        Uninstaller engine(other.value_or(tree.paths()), {}, {}, runner);
        engine.emit = transcript.emit();
        const AdministratorOutcome outcome = engine.runAsAdministrator({"--all-users"});
        failures = engine.failures;
        return outcome;
    }

    [[nodiscard]] bool temporaryFolderIsEmpty() const {
        return fs::is_empty(tree.paths().temporaryDirectory);
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    std::shared_ptr<test::ScriptedRunner> runner;
    test::Transcript transcript;
    Failures failures;
};

TEST_F(AdministratorStep, TurnsStatusLinesIntoEventsAndFailures) {
    const std::string system = tree.paths().systemRoot;
    EXPECT_EQ(
        run(test::writes("DOING " + system + "/Library/Kelmar\nOK " + system + "/Library/Kelmar\n" +
                         "LOG two words\n\nNOISE x\nFAIL " + system + "/Users/x\tit is used\n" +
                         "FAIL " + tree.paths().home + "/y\nDONE\n")),
        AdministratorOutcome::finished);
    EXPECT_EQ(transcript.lines,
              (Lines{"doing Running the administrator step", "doing Removing /Library/Kelmar",
                     "log Removed /Library/Kelmar", "log two words",
                     "log Could not remove /Users/x: it is used",
                     "log Could not remove ~/y: could not be removed"}));
    EXPECT_EQ(failures, (Failures{{system + "/Users/x", "it is used"},
                                  {tree.paths().home + "/y", "could not be removed"}}));
    EXPECT_TRUE(temporaryFolderIsEmpty());
}

TEST_F(AdministratorStep, PassesTheStatusFileFirstAndTheReason) {
    run(test::writes("DONE"));
    ASSERT_EQ(runner->lastArguments.size(), 3U);
    EXPECT_EQ(runner->lastArguments[0], "--status");
    EXPECT_TRUE(runner->lastArguments[1].starts_with(tree.paths().temporaryDirectory +
                                                     "/kelmar-uninstaller-"));
    EXPECT_TRUE(runner->lastArguments[1].ends_with("/status"));
    EXPECT_EQ(runner->lastArguments[2], "--all-users");
    EXPECT_TRUE(runner->lastScript.ends_with("/uninstall-as-admin.sh"));
    EXPECT_TRUE(runner->lastReason.starts_with(reasonStart));
}

TEST_F(AdministratorStep, OnTheRealMachineSaysThatItWaitsForAPassword) {
    KelmarPaths paths = tree.paths();
    paths.testRoot.reset();
    run(test::writes("DONE"), paths);
    EXPECT_EQ(transcript.lines, Lines{"doing Waiting for an administrator's password"});
}

TEST_F(AdministratorStep, WithoutDoneItStoppedBeforeItFinished) {
    EXPECT_EQ(run(test::writes("DOING /a\nOK /a\n")), AdministratorOutcome::finished);
    EXPECT_EQ(transcript.lines.size(), 3U);
    EXPECT_EQ(failures, (Failures{{"Administrator step", "it stopped before it finished"}}));
}

TEST_F(AdministratorStep, DoneWithoutALineEndIsEnough) {
    EXPECT_EQ(run(test::writes("DONE")), AdministratorOutcome::finished);
    EXPECT_EQ(failures, Failures{});
}

TEST_F(AdministratorStep, ARefusedPromptLeavesOneLineAndNothingElse) {
    EXPECT_EQ(run([](const std::string&) { throw AdministratorError::cancelled(); }),
              AdministratorOutcome::cancelled);
    EXPECT_EQ(transcript.lines,
              (Lines{"doing Running the administrator step",
                     "log No administrator's password was given; nothing was removed."}));
    EXPECT_EQ(failures, Failures{});
    EXPECT_TRUE(temporaryFolderIsEmpty());
}

TEST_F(AdministratorStep, AFailureComesAfterThoseOfItsLines) {
    EXPECT_EQ(run([](const std::string& status) {
                  test::writes("FAIL /a\twhy\n")(status);
                  throw AdministratorError::failed("no such luck");
              }),
              AdministratorOutcome::failed);
    EXPECT_EQ(failures, (Failures{{"/a", "why"}, {"Administrator step", "no such luck"}}));
    EXPECT_TRUE(temporaryFolderIsEmpty());
}

TEST_F(AdministratorStep, AnyOtherErrorIsAFailureToo) {
    EXPECT_EQ(run([](const std::string&) { throw std::runtime_error("odd"); }),
              AdministratorOutcome::failed);
    EXPECT_EQ(failures, (Failures{{"Administrator step", "odd"}}));
    EXPECT_TRUE(temporaryFolderIsEmpty());
}

TEST_F(AdministratorStep, ATemporaryFolderThatCannotBeMadeIsAFailure) {
    fs::remove(tree.paths().temporaryDirectory);
    tree.file(tree.paths().temporaryDirectory, "in the way");
    EXPECT_EQ(run(test::writes("DONE\n")), AdministratorOutcome::failed);
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(
        failures[0].path.starts_with(tree.paths().temporaryDirectory + "/kelmar-uninstaller-"));
    EXPECT_EQ(failures[0].reason, "Not a directory");
    EXPECT_EQ(transcript.lines, Lines{});
    EXPECT_EQ(runner->runs, 0);
}

TEST_F(AdministratorStep, AMissingTemporaryFolderIsMade) {
    fs::remove(tree.paths().temporaryDirectory);
    EXPECT_EQ(run(test::writes("DONE\n")), AdministratorOutcome::finished);
    EXPECT_TRUE(temporaryFolderIsEmpty());
}

TEST_F(AdministratorStep, AScriptThatTakesItsStatusFileAwayStoppedBeforeItFinished) {
    EXPECT_EQ(run([](const std::string& status) {
                  fs::remove_all(fs::path(status).parent_path());
                  test::writes("DONE\n")(status); // into nowhere
              }),
              AdministratorOutcome::finished);
    EXPECT_EQ(failures, (Failures{{"Administrator step", "it stopped before it finished"}}));
    EXPECT_TRUE(temporaryFolderIsEmpty());
}

TEST_F(AdministratorStep, AMegabyteWithoutALineEndIsOneLogLine) {
    EXPECT_EQ(run(test::writes("LOG " + std::string(1'000'000, 'x') + "\nDONE\n")),
              AdministratorOutcome::finished);
    EXPECT_EQ(transcript.lines.back().size(), 1'000'000U + 4);
    EXPECT_EQ(failures, Failures{});
}

using AdministratorStepDeath = AdministratorStep;

TEST_F(AdministratorStepDeath, AFailLineWithoutAPathEndsTheProgram) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    // The program that dies runs this test once more, and leaves its folder behind: in ours.
    ::setenv("TMPDIR", tree.paths().temporaryDirectory.c_str(), 1);
    EXPECT_DEATH(run(test::writes("FAIL \t\nDONE\n")),
                 "^Kelmar Uninstaller: broken contract: the administrator's script wrote a FAIL "
                 "line without "
                 "a path\n$");
    ::unsetenv("TMPDIR");
}

} // namespace
} // namespace kelmar
