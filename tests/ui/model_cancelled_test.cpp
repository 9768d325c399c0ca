#include "discovery/scanner.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/ui/model_fixture.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kelmar {
namespace {

const std::string notice =
    "Nothing was removed: removing Kelmar needs an administrator's password. Kelmar was closed; "
    "open it again from Applications if you still need it.";

/// A run that is refused the password.
class ModelCancelled : public test::ModelFixture {
protected:
    void SetUp() override {
        tree.services(Scope::me);
        tree.dataFolder(Scope::me, "Store").dataFolder(Scope::allUsers, "CDN");
        tree.dataFolder(Scope::allUsers, "Models");
        found.installations = {test::installation(tree.paths(), Scope::me)};
        found.dataRoots = {test::dataRoot(tree.paths(), Scope::me, {"Store"}),
                           test::dataRoot(tree.paths(), Scope::allUsers, {"CDN", "Models"})};
        sizes = {{mine("Store"), 1}, {shared("CDN"), 2}, {shared("Models"), 3}};
        refuseThePassword();
        scanAndMeasure();
        model->setSelected(found.dataFolders()[0], false);
        model->setSelected(found.dataFolders()[2], false);
    }

    /// To where the outcome has been handled and the scan waits.
    void runUntilRefused() {
        model->uninstall();
        dispatcher->runOne(dispatcher->initiated);
        dispatcher->runAll(dispatcher->main);
    }
};

TEST_F(ModelCancelled, TellsWhyAndScansAgain) {
    Published expected = published();
    expected.phase = Model::Scanning{};
    expected.notice = notice;
    expected.removed = found;
    expected.deletedData = {found.dataFolders()[1]};
    expected.stages = {
        {Uninstaller::Stage::close, "Closing Kelmar and its background services",
         Model::StageRow::State::done},
        {Uninstaller::Stage::administrator, "Deleting the shared Kelmar data",
         Model::StageRow::State::running},
        {Uninstaller::Stage::account,
         "Removing Kelmar, its settings and permissions from your account",
         Model::StageRow::State::pending},
    };
    expected.detail = "Running the administrator step";
    expected.log = LogLines({"No administrator's password was given; nothing was removed."});
    runUntilRefused();
    EXPECT_EQ(published(), expected);
    EXPECT_FALSE(model->isWorking());
    EXPECT_EQ(dispatcher->initiated.size(), 1U);

    // The rows, the choice and the notice outlive the scan.
    dispatcher->settle();
    expected.phase = Model::Ready{};
    EXPECT_EQ(published(), expected);
    EXPECT_EQ(scanned.size(), 2U);
    EXPECT_EQ(measured.size(), 3U);
}

TEST_F(ModelCancelled, IsNeverFinished) {
    const std::array<std::string, 4> names{"scanning", "ready", "working", "finished"};
    std::vector<std::string> phases;
    const auto look = [&] { phases.push_back(names.at(published().phase.index())); };
    model->observe(look);
    runUntilRefused();
    dispatcher->settle();
    look();
    phases.erase(std::unique(phases.begin(), phases.end()), phases.end());
    EXPECT_EQ(phases, (std::vector<std::string>{"ready", "working", "scanning", "ready"}));
}

TEST_F(ModelCancelled, RemovesNothing) {
    const auto before = test::contents(folder / "t");
    runUntilRefused();
    EXPECT_EQ(test::contents(folder / "t"), before);
}

TEST_F(ModelCancelled, TheChoiceIsCutDownToWhatIsStillThere) {
    runUntilRefused();
    model->setDeleteAllData(true);
    found.dataRoots.pop_back();
    dispatcher->settle();
    EXPECT_EQ(published().selectedData, std::set<std::string>{mine("Store")});
    EXPECT_EQ(published().notice, notice);
}

TEST_F(ModelCancelled, TheNextRunClearsNoticeRecordAndLine) {
    runUntilRefused();
    dispatcher->settle();
    ASSERT_EQ(published().notice, notice);
    ASSERT_FALSE(published().log.empty());
    ASSERT_FALSE(published().detail.empty());
    model->uninstall();
    EXPECT_EQ(published().notice, std::nullopt);
    EXPECT_EQ(published().log, LogLines());
    EXPECT_EQ(published().detail, "");
    for (const Model::StageRow& row : published().stages) {
        EXPECT_EQ(row.state, Model::StageRow::State::pending) << row.title;
    }
}

TEST_F(ModelCancelled, TheLineThatItLeavesGoesWhenAStageStarts) {
    // A second run has begun when the first is refused.
    model->uninstall();
    runUntilRefused();
    ASSERT_EQ(published().detail, "Running the administrator step");
    dispatcher->runOne(dispatcher->initiated);
    dispatcher->runOne(dispatcher->main);
    EXPECT_EQ(published().stages[0].state, Model::StageRow::State::running);
    EXPECT_EQ(published().detail, "");
}

TEST_F(ModelCancelled, TheNoticeStaysUntilTheNextRun) {
    runUntilRefused();
    dispatcher->settle();
    model->scan();
    dispatcher->settle();
    model->uninstallClicked();
    model->setConfirmingDataDeletion(false);
    EXPECT_EQ(published().notice, notice);
}

TEST_F(ModelCancelled, TheNextRunCanGoThrough) {
    runUntilRefused();
    dispatcher->settle();
    runner = Uninstaller::usualRunner(tree.paths());
    model->uninstall();
    dispatcher->settle();
    EXPECT_EQ(published().phase, Model::Phase(Model::Finished{}));
    EXPECT_EQ(published().notice, std::nullopt);
    EXPECT_EQ(Scanner::scan(tree.paths()).dataFolders().size(), 2U);
}

TEST_F(ModelCancelled, TheNoticeIsToldBefore) {
    model->uninstall();
    dispatcher->runOne(dispatcher->initiated);
    while (dispatcher->main.size() > 1) {
        dispatcher->runOne(dispatcher->main);
    }
    std::vector<Published> seen;
    Published expected = published();
    model->observe([&] { seen.push_back(published()); });
    dispatcher->runOne(dispatcher->main);
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0], expected);
    expected.notice = notice;
    EXPECT_EQ(seen[1], expected);
}

} // namespace
} // namespace kelmar
