#include "engine/uninstaller.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/scripted_runner.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/transcript.hpp"
#include "tests/support/unremovable.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Failures = std::vector<Uninstaller::Failure>;

constexpr const char* settingsPane = "Settings > Apps";
const std::string advice =
    "log macOS may keep one program from removing another maker's app. Allow Kelmar Uninstaller, "
    "or Terminal if it was started there, in Settings > Apps, and run it again.";

/// On a system that lets a person allow the removal of apps.
class AppManagement : public testing::Test {
protected:
    AppManagement() { engine.emit = transcript.emit(); }

    void runScript(const std::string& lines) {
        script = std::make_shared<test::ScriptedRunner>(test::writes(lines + "DONE\n"));
        Uninstaller administered{tree.paths(), {}, {}, script};
        administered.appManagement = engine.appManagement;
        administered.emit = transcript.emit();
        administered.runAsAdministrator({"--all-users"});
        failures = administered.failures;
    }

    [[nodiscard]] auto advices() const {
        return std::count(transcript.lines.begin(), transcript.lines.end(), advice);
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    Uninstaller engine = [this] {
        Uninstaller made{tree.paths(), {}, {}};
        made.appManagement = settingsPane;
        return made;
    }();
    std::shared_ptr<test::ScriptedRunner> script;
    test::Transcript transcript;
    Failures failures;
};

TEST_F(AppManagement, IsExplainedOnceForAnAppThatTheSystemDoesNotLetGo) {
    runScript("FAIL /Applications/Kelmar.app\trm: Kelmar.app/Contents: Operation not permitted\n"
              "FAIL /Library/Kelmar\trm: Kelmar/Helper.app/x: Operation not permitted\n");
    EXPECT_EQ(advices(), 1);
    EXPECT_EQ(transcript.lines.at(2), advice) << "behind the failure that it explains";
    EXPECT_EQ(
        failures,
        (Failures{{"/Applications/Kelmar.app", "rm: Kelmar.app/Contents: Operation not permitted"},
                  {"/Library/Kelmar", "rm: Kelmar/Helper.app/x: Operation not permitted"}}));
}

TEST_F(AppManagement, IsExplainedForAnAppOfTheUsersOwn) {
    const std::string inside = tree.paths().home + "/Applications/Kelmar.app/Contents/x";
    tree.file(inside);
    const test::Unremovable locked(inside);
    if (!locked.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    engine.remove(tree.paths().home + "/Applications/Kelmar.app");
    EXPECT_EQ(advices(), 1);
    EXPECT_EQ(engine.failures.size(), 1U);
}

TEST_F(AppManagement, IsNotTheReasonForOtherFilesOrOtherTroubles) {
    runScript("FAIL /Library/Kelmar\trm: Kelmar/x: Operation not permitted\n"
              "FAIL /Library/Kelmar.apps/x\trm: x: Operation not permitted\n"
              "FAIL /Applications/Kelmar.app\trm: Kelmar.app: Permission denied\n");
    EXPECT_EQ(advices(), 0);
}

TEST_F(AppManagement, IsNotSpokenOfWhereThereIsNone) {
    engine.appManagement.clear();
    runScript("FAIL /Applications/Kelmar.app\trm: Kelmar.app/Contents: Operation not permitted\n");
    EXPECT_EQ(transcript.lines.size(), 2U);
}

} // namespace
} // namespace kelmar
