#include "tests/engine/run_fixture.hpp"
#include "tests/support/snapshot.hpp"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Lines = std::vector<std::string>;
using Outcome = Uninstaller::Outcome;

class InterruptedRun : public test::WholeRun {
protected:
    /// A run that its caller ends once the engine has said `line`.
    Outcome runUntil(const std::string& line, const std::set<std::string>& selected = {}) {
        return run(selected, [this, line] {
            return std::find(transcript.lines.begin(), transcript.lines.end(), line) !=
                   transcript.lines.end();
        });
    }
};

TEST_F(InterruptedRun, EndsTheStepUnderWayAndBeginsNoOther) {
    tree.services(Scope::me).agents(Scope::me);
    EXPECT_EQ(runUntil("doing Removing ~/Library/Kelmar"),
              Outcome(Uninstaller::Interrupted{
                  {{tree.paths().agents(Scope::me)[0], "it is still there"},
                   {tree.paths().agents(Scope::me)[1], "it is still there"}}}));
    EXPECT_EQ(transcript.lines,
              (Lines{"started close", "finished close", "started account",
                     "doing Removing ~/Library/Kelmar", "log Removed ~/Library/Kelmar"}));
}

TEST_F(InterruptedRun, BeforeThePasswordAsksForNoneAndRemovesNothing) {
    tree.everything();
    const auto before = test::contents(folder / "t");
    runner = std::make_shared<test::ScriptedRunner>(test::writes("DONE\n"));
    const Outcome outcome = runUntil("started close");
    ASSERT_TRUE(std::holds_alternative<Uninstaller::Interrupted>(outcome));
    EXPECT_FALSE(std::get<Uninstaller::Interrupted>(outcome).failures.empty());
    EXPECT_EQ(runner->runs, 0);
    EXPECT_EQ(transcript.lines, Lines{"started close"}) << "not sent for one that was interrupted";
    EXPECT_EQ(test::contents(folder / "t"), before);
}

TEST_F(InterruptedRun, EndsAfterAnAdministratorStepThatRan) {
    tree.services(Scope::allUsers).services(Scope::me);
    runner = std::make_shared<test::ScriptedRunner>(test::writes("LOG it runs\nDONE\n"));
    EXPECT_EQ(runUntil("log it runs"),
              Outcome(Uninstaller::Interrupted{
                  {{tree.paths().services(Scope::allUsers), "it is still there"},
                   {tree.paths().services(Scope::me), "it is still there"}}}));
    EXPECT_EQ(transcript.lines.back(), "log it runs");
}

TEST_F(InterruptedRun, IsInterruptedAlsoWhereThatEndedThePrompt) {
    tree.services(Scope::allUsers);
    runner = std::make_shared<test::ScriptedRunner>(
        [](const std::string&) { throw AdministratorError::cancelled(); });
    EXPECT_EQ(runUntil("doing Running the administrator step"),
              Outcome(Uninstaller::Interrupted{
                  {{tree.paths().services(Scope::allUsers), "it is still there"}}}));
}

TEST_F(InterruptedRun, IsFinishedWhereNothingWasLeftToDo) {
    tree.services(Scope::me);
    EXPECT_EQ(runUntil("doing Removing ~/Library/Kelmar"), Outcome(Uninstaller::Finished{}));
    EXPECT_EQ(transcript.lines.back(), "finished account");
}

TEST_F(InterruptedRun, IsInterruptedWhereThatEndedTheLastRemoval) {
    tree.services(Scope::me);
    // As rm(1) leaves it that a terminal's SIGINT has ended.
    const std::string kept = tree.paths().services(Scope::me);
    Uninstaller engine(tree.paths(), Scanner::scan(tree.paths()), {}, nullptr);
    const Outcome outcome = engine.run(
        [&](const Uninstaller::Event& event) {
            transcript(event);
            if (transcript.lines.back() == "log Removed ~/Library/Kelmar") {
                tree.services(Scope::me);
            }
        },
        [this] { return transcript.lines.back() == "finished account"; });
    EXPECT_EQ(outcome, Outcome(Uninstaller::Interrupted{{{kept, "it is still there"}}}));
}

TEST_F(InterruptedRun, KeepsAnEmptyDataRootThatItWasNotToTouchAnyMore) {
    tree.dataFolder(Scope::me, "Store");
    const std::string root = tree.paths().dataRoot(Scope::me);
    EXPECT_EQ(runUntil("log Removed ~/Kelmar/Store", {root + "/Store"}),
              Outcome(Uninstaller::Interrupted{}));
    EXPECT_TRUE(std::filesystem::exists(root));
}

} // namespace
} // namespace kelmar
