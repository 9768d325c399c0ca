#include "tests/ui/model_fixture.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Lines = std::vector<std::string>;

class ModelEvents : public test::ModelFixture {
protected:
    /// What a person sees of a run: the rows' states, a letter each, the line and the log.
    [[nodiscard]] std::string shown() const {
        std::string text;
        for (const Model::StageRow& row : published().stages) {
            text += row.state == Model::StageRow::State::pending   ? '-'
                    : row.state == Model::StageRow::State::running ? '>'
                                                                   : '+';
        }
        text += " [" + published().detail + "]";
        for (std::size_t index = 0; index < published().log.size(); ++index) {
            text += " " + std::string(published().log[index]) + ";";
        }
        return text + (model->isWorking() ? "" : " over");
    }

    /// `shown` after each step that a run hands to the main thread.
    [[nodiscard]] Lines afterEachStep() {
        Lines lines;
        while (!dispatcher->main.empty()) {
            dispatcher->runOne(dispatcher->main);
            lines.push_back(shown());
        }
        return lines;
    }
};

TEST_F(ModelEvents, AreHandledOneByOneOnTheMainThread) {
    tree.services(Scope::me);
    found.installations = {test::installation(tree.paths(), Scope::me)};
    scan();
    model->uninstall();
    EXPECT_EQ(shown(), "-- []");
    dispatcher->runOne(dispatcher->initiated);
    EXPECT_EQ(shown(), "-- []");
    EXPECT_EQ(afterEachStep(), (Lines{
                                   ">- []",
                                   "+- []",
                                   "+> []",
                                   "+> [Removing ~/Library/Kelmar]",
                                   "+> [Removing ~/Library/Kelmar] Removed ~/Library/Kelmar;",
                                   "++ [] Removed ~/Library/Kelmar;",
                                   "++ [] Removed ~/Library/Kelmar; over",
                               }));
    EXPECT_TRUE(isIn<Model::Finished>());
}

TEST_F(ModelEvents, OfTheAdministratorsScriptComeInTheirOrder) {
    tree.dataFolder(Scope::me, "Store");
    found.installations = {test::installation(tree.paths(), Scope::allUsers)};
    findData({"Store"});
    runner = std::make_shared<test::ScriptedRunner>(
        test::writes("DOING /a\nOK /a\nLOG hello\nDOING /b\nFAIL /b\tbusy\nDONE\n"));
    scan();
    model->uninstall();
    dispatcher->runOne(dispatcher->initiated);
    const std::string log = " Removed /a; hello; Could not remove /b: busy;";
    const std::string all = log + " Removed ~/Kelmar/Store;";
    EXPECT_EQ(afterEachStep(), (Lines{
                                   ">-- []",
                                   "+-- []",
                                   "+>- []",
                                   "+>- [Running the administrator step]",
                                   "+>- [Removing /a]",
                                   "+>- [Removing /a] Removed /a;",
                                   "+>- [Removing /a] Removed /a; hello;",
                                   "+>- [Removing /b] Removed /a; hello;",
                                   "+>- [Removing /b]" + log,
                                   "++- []" + log,
                                   "++> []" + log,
                                   "++> [Removing ~/Kelmar/Store]" + log,
                                   "++> [Removing ~/Kelmar/Store]" + all,
                                   "++> [Removing ~/Kelmar]" + all,
                                   "++> [Removing ~/Kelmar]" + all + " Removed ~/Kelmar;",
                                   "+++ []" + all + " Removed ~/Kelmar;",
                                   "+++ []" + all + " Removed ~/Kelmar; over",
                               }));
}

TEST_F(ModelEvents, OfARunLeaveEverythingElseAlone) {
    tree.services(Scope::me);
    found = test::usualInventory(tree.paths());
    scanAndMeasure();
    model->setDeleteAllData(false);
    model->uninstall();
    Published expected = published();
    dispatcher->settle();
    ASSERT_FALSE(published().log.empty());
    expected.phase = published().phase;
    expected.stages = published().stages;
    expected.log = published().log;
    EXPECT_EQ(published(), expected);
}

TEST_F(ModelEvents, AreEachToldBefore) {
    tree.services(Scope::me);
    found.installations = {test::installation(tree.paths(), Scope::me)};
    scan();
    model->uninstall();
    dispatcher->runOne(dispatcher->initiated);
    Published before = published();
    int steps = 0;
    int told = 0;
    // A step may tell more than once, for the row and for the line: the first time nothing has
    // changed yet.
    model->observe([&] {
        if (told++ == 0) {
            EXPECT_EQ(published(), before) << "step " << steps;
        }
    });
    while (!dispatcher->main.empty()) {
        before = published();
        told = 0;
        dispatcher->runOne(dispatcher->main);
        EXPECT_GT(told, 0) << "step " << steps;
        ++steps;
    }
    EXPECT_EQ(steps, 7);
}

TEST_F(ModelEvents, OfAStageWithoutARowChangeNoRow) {
    // The first run goes on while a second begins, with what a scan found in between: its events
    // are of stages that the second doesn't have.
    tree.services(Scope::me);
    found.installations = {test::installation(tree.paths(), Scope::me)};
    scan();
    model->uninstall();
    found = {};
    findData({"Store"});
    model->scan();
    dispatcher->runOne(dispatcher->initiated, 1);
    dispatcher->runAll(dispatcher->main);
    ASSERT_TRUE(published().inventory.installations.empty());
    model->setDeleteAllData(true);
    model->uninstall();
    ASSERT_EQ(shown(), "- []");
    const std::vector<Model::StageRow> rows = published().stages;
    dispatcher->runOne(dispatcher->initiated);
    dispatcher->runOne(dispatcher->main);
    EXPECT_EQ(published().stages, rows);
    EXPECT_EQ(afterEachStep(), (Lines{
                                   "- []",
                                   "- []",
                                   "- [Removing ~/Library/Kelmar]",
                                   "- [Removing ~/Library/Kelmar] Removed ~/Library/Kelmar;",
                                   "- [] Removed ~/Library/Kelmar;",
                                   "- [] Removed ~/Library/Kelmar; over",
                               }));
}

TEST_F(ModelEvents, AHeldRecordStaysAsItWasWhenTheRunGoesOn) {
    tree.services(Scope::me).file(tree.paths().home + "/Library/Logs/Kelmar");
    found.installations = {test::installation(tree.paths(), Scope::me)};
    found.settings = {tree.paths().home + "/Library/Logs/Kelmar"};
    scan();
    model->uninstall();
    dispatcher->runOne(dispatcher->initiated);
    while (published().log.empty()) {
        dispatcher->runOne(dispatcher->main);
    }
    const LogLines held = published().log;
    dispatcher->runAll(dispatcher->main);
    EXPECT_EQ(held, LogLines({"Removed ~/Library/Kelmar"}));
    EXPECT_EQ(published().log,
              LogLines({"Removed ~/Library/Kelmar", "Removed ~/Library/Logs/Kelmar"}));
    EXPECT_TRUE(published().log.continues(held));
}

} // namespace
} // namespace kelmar
