#include "tests/engine/run_fixture.hpp"
#include "tests/support/snapshot.hpp"

#include <memory>
#include <set>
#include <string>
#include <variant>
#include <vector>

namespace kelmar {
namespace {

using Lines = std::vector<std::string>;
using Outcome = Uninstaller::Outcome;

class Run : public test::WholeRun {
protected:
    [[nodiscard]] std::string mine(const std::string& name) const {
        return tree.paths().dataRoot(Scope::me) + "/" + name;
    }
};

TEST_F(Run, WithoutStagesSendsNoEventAndStillVerifies) {
    tree.dataFolder(Scope::me, "Store");
    EXPECT_EQ(run(), Outcome(Uninstaller::Finished{}));
    EXPECT_EQ(transcript.lines, Lines{});
}

TEST_F(Run, OfAnInstallationOfMineClosesAndRemoves) {
    tree.services(Scope::me);
    EXPECT_EQ(run(), Outcome(Uninstaller::Finished{}));
    EXPECT_EQ(transcript.lines, (Lines{"started close", "finished close", "started account",
                                       "doing Removing ~/Library/Kelmar",
                                       "log Removed ~/Library/Kelmar", "finished account"}));
}

TEST_F(Run, GoesThroughAllStagesInOrder) {
    tree.services(Scope::allUsers).dataFolder(Scope::me, "Logs").dataFolder(Scope::me, "Store");
    tree.file(tree.paths().home + "/Library/Logs/Kelmar");
    runner = std::make_shared<test::ScriptedRunner>(test::writes("LOG working\nDONE\n"));
    EXPECT_EQ(run({mine("Store")}),
              Outcome(Uninstaller::Finished{
                  {{tree.paths().services(Scope::allUsers), "it is still there"}}}));
    EXPECT_EQ(
        transcript.lines,
        (Lines{"started close", "finished close", "started administrator",
               "doing Running the administrator step", "log working", "finished administrator",
               "started account", "doing Removing ~/Library/Logs/Kelmar",
               "log Removed ~/Library/Logs/Kelmar", "finished account", "started data",
               "doing Removing ~/Kelmar/Store", "log Removed ~/Kelmar/Store",
               "log ~/Kelmar: it still holds Logs.", "finished data"}));
}

TEST_F(Run, CancelledRemovesNothingAndEndsAtOnce) {
    tree.everything();
    const auto before = test::contents(folder / "t");
    runner = std::make_shared<test::ScriptedRunner>(
        [](const std::string&) { throw AdministratorError::cancelled(); });
    EXPECT_EQ(run({mine("Store")}), Outcome(Uninstaller::Cancelled{}));
    EXPECT_EQ(transcript.lines,
              (Lines{"started close", "finished close", "started administrator",
                     "doing Running the administrator step",
                     "log No administrator's password was given; nothing was removed."}));
    EXPECT_EQ(test::contents(folder / "t"), before);
}

TEST_F(Run, AFailedAdministratorStepStopsNothing) {
    tree.services(Scope::allUsers).services(Scope::me);
    runner = std::make_shared<test::ScriptedRunner>(
        [](const std::string&) { throw AdministratorError::failed("no"); });
    EXPECT_EQ(run(), Outcome(Uninstaller::Finished{
                         {{"Administrator step", "no"},
                          {tree.paths().services(Scope::allUsers), "it is still there"}}}));
    EXPECT_EQ(transcript.lines.back(), "finished account");
}

TEST_F(Run, TheDataRootGoesWithItsLastFolder) {
    tree.dataFolder(Scope::me, "Store").otherItem(Scope::me, ".DS_Store");
    EXPECT_EQ(run({mine("Store")}), Outcome(Uninstaller::Finished{}));
    EXPECT_EQ(transcript.lines,
              (Lines{"started data", "doing Removing ~/Kelmar/Store", "log Removed ~/Kelmar/Store",
                     "doing Removing ~/Kelmar", "log Removed ~/Kelmar", "finished data"}));
}

} // namespace
} // namespace kelmar
