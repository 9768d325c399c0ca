#include "discovery/scanner.hpp"
#include "engine/uninstaller.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/no_threads.hpp"
#include "tests/support/scripted_runner.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/transcript.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <new>
#include <string>

namespace kelmar {
namespace {

using Outcome = Uninstaller::Outcome;

/// A run on a machine that has no more of something.
class Shortage : public testing::Test {
protected:
    /// A run in which memory runs out when the engine says `line`.
    Outcome runUntilMemoryRunsOutAt(const std::string& line) {
        Uninstaller engine(tree.paths(), Scanner::scan(tree.paths()), {}, runner);
        return engine.run([this, line](const Uninstaller::Event& event) {
            transcript(event);
            if (transcript.lines.back() == line) {
                throw std::bad_alloc();
            }
        });
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    std::shared_ptr<AdministratorRunner> runner;
    test::Transcript transcript;
};

TEST_F(Shortage, OfMemoryEndsTheRunWithWhatIsLeft) {
    tree.services(Scope::me).agents(Scope::me);
    EXPECT_EQ(
        runUntilMemoryRunsOutAt("log Removed ~/Library/Kelmar"),
        Outcome(Uninstaller::Finished{{{"Kelmar Uninstaller", "memory ran out before it was done"},
                                       {tree.paths().agents(Scope::me)[0], "it is still there"},
                                       {tree.paths().agents(Scope::me)[1], "it is still there"}}}));
    EXPECT_EQ(transcript.lines.back(), "log Removed ~/Library/Kelmar");
}

TEST_F(Shortage, OfMemoryForTheScriptsLinesIsAFailureOfTheStep) {
    tree.services(Scope::allUsers).services(Scope::me);
    runner = std::make_shared<test::ScriptedRunner>(test::writes("LOG much\nDONE\n"));
    EXPECT_EQ(runUntilMemoryRunsOutAt("log much"),
              Outcome(Uninstaller::Finished{
                  {{"Administrator step", "it stopped before it finished"},
                   {tree.paths().services(Scope::allUsers), "it is still there"}}}));
    EXPECT_EQ(transcript.lines.back(), "finished account") << "the run goes on";
}

TEST_F(Shortage, OfThreadsReadsTheScriptsLinesAfterwards) {
    tree.services(Scope::allUsers);
    runner = std::make_shared<test::ScriptedRunner>(test::writes("LOG alone\nDONE\n"));
    const test::NoThreads noThreads;
    EXPECT_EQ(runUntilMemoryRunsOutAt("never"),
              Outcome(Uninstaller::Finished{
                  {{tree.paths().services(Scope::allUsers), "it is still there"}}}));
    EXPECT_NE(std::find(transcript.lines.begin(), transcript.lines.end(), "log alone"),
              transcript.lines.end());
}

} // namespace
} // namespace kelmar
