#include "admin/current_user_runner.hpp"
#include "admin/password_prompt_runner.hpp"
#include "discovery/scanner.hpp"
#include "system/files/files.hpp"
#include "tests/ui/model_fixture.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Stage = Uninstaller::Stage;
using State = UninstallerModel::StageRow::State;
using Rows = std::vector<UninstallerModel::StageRow>;
using Failures = std::vector<Uninstaller::Failure>;

const std::string closing = "Closing Kelmar and its background services";
const std::string forAllUsers = "Removing Kelmar for all users of this Mac";
const std::string account = "Removing Kelmar, its settings and permissions from your account";
const std::string data = "Deleting your Kelmar data";

class ModelUninstall : public test::ModelFixture {
protected:
    /// The whole run, to its outcome.
    void run() {
        model->uninstall();
        dispatcher->runAll(dispatcher->initiated);
        dispatcher->runAll(dispatcher->main);
    }
};

TEST_F(ModelUninstall, TakesSnapshotsAndMakesRowsAtOnce) {
    found.installations = {test::installation(tree.paths(), Scope::allUsers),
                           test::installation(tree.paths(), Scope::me)};
    findData({"Store", "Logs"});
    scanAndMeasure();
    model->setSelected(found.dataFolders()[1], false);
    Published expected = published();
    model->uninstall();
    expected.phase = Model::Working{};
    expected.removed = found;
    expected.deletedData = {found.dataFolders()[0]};
    expected.stages = {{Stage::close, closing, State::pending},
                       {Stage::administrator, forAllUsers, State::pending},
                       {Stage::account, account, State::pending},
                       {Stage::data, data, State::pending}};
    EXPECT_EQ(published(), expected);
    EXPECT_TRUE(model->isWorking());
    EXPECT_EQ(dispatcher->initiated.size(), 1U);
    EXPECT_TRUE(dispatcher->main.empty());
    EXPECT_TRUE(dispatcher->later.empty());
}

TEST_F(ModelUninstall, OfNothingHasNoRowsAndFinishes) {
    scan();
    run();
    Published expected = test::readyWith({});
    expected.phase = Model::Finished{};
    EXPECT_EQ(published(), expected);
}

TEST_F(ModelUninstall, GivesTheEngineWhatWasShownAndChosenWhenItStarted) {
    found.installations = {test::installation(tree.paths(), Scope::allUsers)};
    found.dataRoots = {test::dataRoot(tree.paths(), Scope::allUsers, {"CDN", "Models"})};
    scan();
    model->setSelected(found.dataFolders()[0], false);
    const auto scripted = std::make_shared<test::ScriptedRunner>(test::writes("DONE\n"));
    runner = scripted;
    model->uninstall();
    runner = nullptr;
    model->setDeleteAllData(true);
    dispatcher->runAll(dispatcher->initiated);
    ASSERT_EQ(scripted->runs, 1);
    EXPECT_EQ(Paths(scripted->lastArguments.begin() + 2, scripted->lastArguments.end()),
              (Paths{"--all-users", "--shared-data", shared("Models"), "--test-root",
                     tree.paths().systemRoot}));
}

TEST_F(ModelUninstall, TheSnapshotsOutliveTheRunAndTheNextScan) {
    findData({"Store"});
    const Inventory before = found;
    scan();
    run();
    found = {};
    scan();
    EXPECT_EQ(published().inventory, Inventory{});
    EXPECT_EQ(published().removed, before);
    EXPECT_EQ(published().deletedData, before.dataFolders());
}

TEST_F(ModelUninstall, FinishesWithWhatIsLeftOver) {
    tree.services(Scope::allUsers);
    found.installations = {test::installation(tree.paths(), Scope::allUsers)};
    scan();
    run();
    const Failures left{{tree.paths().services(Scope::allUsers), "it is still there"}};
    EXPECT_EQ(published().phase, Model::Phase(Model::Finished{left}));
    EXPECT_FALSE(model->isWorking());
    EXPECT_EQ(published().notice, std::nullopt);
}

TEST_F(ModelUninstall, KeepsTheOrderOfTheFailures) {
    tree.services(Scope::allUsers);
    found.installations = {test::installation(tree.paths(), Scope::allUsers)};
    runner = std::make_shared<test::ScriptedRunner>(
        [](const std::string&) { throw AdministratorError::failed("out of paper"); });
    scan();
    run();
    const Failures left{{"Administrator step", "out of paper"},
                        {tree.paths().services(Scope::allUsers), "it is still there"}};
    EXPECT_EQ(published().phase, Model::Phase(Model::Finished{left}));
}

TEST_F(ModelUninstall, StartsNothingByItselfAfterARunThatWentThrough) {
    findData({"Store"});
    scanAndMeasure();
    run();
    EXPECT_TRUE(dispatcher->initiated.empty());
    EXPECT_TRUE(dispatcher->later.empty());
    EXPECT_EQ(scanned.size(), 1U);
}

TEST_F(ModelUninstall, TryingAgainScansAndKeepsTheRows) {
    findData({"Store"});
    scanAndMeasure();
    run();
    Published expected = published();
    model->scan();
    expected.phase = Model::Scanning{};
    EXPECT_EQ(published(), expected);
    dispatcher->settle();
    expected.phase = Model::Ready{};
    EXPECT_EQ(published(), expected);
}

TEST_F(ModelUninstall, ASecondRunTakesFreshSnapshotsAndRows) {
    tree.services(Scope::me);
    found.installations = {test::installation(tree.paths(), Scope::me)};
    scan();
    run();
    ASSERT_EQ(published().stages,
              (Rows{{Stage::close, closing, State::done}, {Stage::account, account, State::done}}));
    ASSERT_FALSE(published().log.empty());
    found = {};
    findData({"Store"});
    scan();
    model->setDeleteAllData(true);
    model->uninstall();
    EXPECT_EQ(published().stages, (Rows{{Stage::data, data, State::pending}}));
    EXPECT_EQ(published().log, LogLines());
    EXPECT_EQ(published().removed, found);
    EXPECT_EQ(published().deletedData, found.dataFolders());
}

TEST_F(ModelUninstall, TellsBeforeItStartsAndBeforeItEnds) {
    findData({"Store"});
    scanAndMeasure();
    const Published ready = published();
    std::vector<Published> seen;
    model->observe([&] { seen.push_back(published()); });
    model->uninstall();
    const Published working = published();
    ASSERT_FALSE(seen.empty());
    for (const Published& before : seen) {
        EXPECT_EQ(before, ready);
    }
    EXPECT_NE(working, ready);
    dispatcher->settle();
    EXPECT_EQ(seen.back().phase, Model::Phase(Model::Working{}));
    EXPECT_EQ(published().phase, Model::Phase(Model::Finished{}));
}

TEST_F(ModelUninstall, HoldsTheModelUntilItsOutcomeIsHandled) {
    tree.services(Scope::me);
    found.installations = {test::installation(tree.paths(), Scope::me)};
    scan();
    const std::weak_ptr<Model> held = model;
    model->uninstall();
    model.reset();
    dispatcher->runAll(dispatcher->initiated);
    ASSERT_FALSE(held.expired());
    EXPECT_TRUE(held.lock()->isWorking());
    dispatcher->runAll(dispatcher->main);
    EXPECT_TRUE(held.expired());
    EXPECT_FALSE(exists(tree.paths().services(Scope::me)));
}

TEST_F(ModelUninstall, OfATreeRemovesWhatIsThereAndKeepsWhatWasNotChosen) {
    tree.app(Scope::allUsers, "4.2").services(Scope::allUsers).agents(Scope::allUsers);
    tree.app(Scope::me, "4.3").services(Scope::me).agents(Scope::me).settings().temporaryFiles();
    tree.dataFolder(Scope::me, "Store", 2'000).dataFolder(Scope::me, "Logs", 1'000);
    tree.dataFolder(Scope::allUsers, "CDN", 3'000).dataFolder(Scope::allUsers, "Models");
    model = std::make_shared<Model>(tree.paths(), dispatcher);
    scanAndMeasure();
    model->setSelected(test::dataFolder(tree.paths(), Scope::me, "Logs"), false);
    model->setSelected(test::dataFolder(tree.paths(), Scope::allUsers, "Models"), false);
    run();
    EXPECT_EQ(published().phase, Model::Phase(Model::Finished{}));
    EXPECT_EQ(published().stages, (Rows{{Stage::close, closing, State::done},
                                        {Stage::administrator, forAllUsers, State::done},
                                        {Stage::account, account, State::done},
                                        {Stage::data, data, State::done}}));
    Inventory left = Scanner::scan(tree.paths());
    EXPECT_EQ(left.dataFolders(),
              (std::vector{Scanner::dataRoot(Scope::me, tree.paths())->folders.at(0),
                           Scanner::dataRoot(Scope::allUsers, tree.paths())->folders.at(0)}));
    EXPECT_TRUE(exists(mine("Logs")));
    EXPECT_TRUE(exists(shared("Models")));
    left.dataRoots.clear();
    EXPECT_TRUE(left.isEmpty());
}

TEST(ModelAdministrator, UnderATestRootIsTheCurrentUser) {
    const auto runner = Uninstaller::usualRunner(test::pathsUnder("/t"));
    EXPECT_NE(dynamic_cast<CurrentUserRunner*>(runner.get()), nullptr);
}

TEST(ModelAdministrator, ElsewhereIsBehindThePasswordPrompt) {
    const auto runner = Uninstaller::usualRunner(test::machinePaths());
    EXPECT_NE(dynamic_cast<PasswordPromptRunner*>(runner.get()), nullptr);
}

} // namespace
} // namespace kelmar
