#include "discovery/scanner.hpp"
#include "tests/ui/model_fixture.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Selection = std::set<std::string>;

using ModelScan = test::ModelFixture;

TEST_F(ModelScan, AFreshModelIsScanningAndHasStartedNothing) {
    EXPECT_EQ(published(), Published{});
    EXPECT_TRUE(isIn<Model::Scanning>());
    EXPECT_EQ(model->paths, tree.paths());
    EXPECT_FALSE(model->isWorking());
    EXPECT_TRUE(dispatcher->main.empty());
    EXPECT_TRUE(dispatcher->initiated.empty());
    EXPECT_TRUE(dispatcher->later.empty());
}

TEST_F(ModelScan, LooksInTheBackgroundAndShowsOnTheMainThread) {
    findData({"Store"});
    model->scan();
    EXPECT_EQ(published(), Published{});
    EXPECT_TRUE(scanned.empty());
    ASSERT_EQ(dispatcher->initiated.size(), 1U);
    EXPECT_TRUE(dispatcher->main.empty());

    dispatcher->runOne(dispatcher->initiated);
    EXPECT_EQ(scanned, std::vector{tree.paths()});
    EXPECT_EQ(published(), Published{});
    ASSERT_EQ(dispatcher->main.size(), 1U);

    dispatcher->runOne(dispatcher->main);
    EXPECT_EQ(published().inventory, found);
    EXPECT_TRUE(isIn<Model::Ready>());
}

TEST_F(ModelScan, SelectsAllDataTheFirstTime) {
    found.installations = {test::installation(tree.paths(), Scope::me)};
    found.dataRoots = {test::dataRoot(tree.paths(), Scope::me, {"Store", "Logs"}),
                       test::dataRoot(tree.paths(), Scope::allUsers, {"CDN"}, {"x"})};
    scan();
    Published expected = test::readyWith(found);
    expected.selectedData = {mine("Store"), mine("Logs"), shared("CDN")};
    EXPECT_EQ(published(), expected);
}

TEST_F(ModelScan, OfNothingIsReadyToo) {
    scan();
    EXPECT_EQ(published(), test::readyWith({}));
    EXPECT_TRUE(dispatcher->later.empty());
}

TEST_F(ModelScan, AFolderThatWasClearedStaysCleared) {
    findData({"Store", "Logs"});
    scan();
    model->setSelected(found.dataFolders().front(), false);
    scan();
    EXPECT_EQ(published().selectedData, Selection{mine("Logs")});
}

TEST_F(ModelScan, AFolderThatIsGoneDropsOutOfTheSelection) {
    findData({"Store", "Export", "Logs"});
    scan();
    findData({"Export"});
    scan();
    EXPECT_EQ(published().selectedData, Selection{mine("Export")});
    findData({"Store", "Export", "Logs"});
    scan();
    EXPECT_EQ(published().selectedData, Selection{mine("Export")});
}

TEST_F(ModelScan, AFolderThatComesLaterIsNotSelected) {
    findData({"Store"});
    scan();
    findData({"Store", "Logs"});
    scan();
    EXPECT_EQ(published().selectedData, Selection{mine("Store")});
}

TEST_F(ModelScan, AnEmptySelectionStaysEmpty) {
    findData({"Store"});
    scan();
    model->setDeleteAllData(false);
    scan();
    EXPECT_EQ(published().selectedData, Selection{});
}

TEST_F(ModelScan, SelectsNothingByItselfOnceNothingWasFound) {
    scan();
    findData({"Store"});
    scan();
    EXPECT_EQ(published().selectedData, Selection{});
}

TEST_F(ModelScan, TakesBackOnlyThePhaseUntilItsResultArrives) {
    found = test::usualInventory(tree.paths());
    found.dataRoots.push_back(test::dataRoot(tree.paths(), Scope::allUsers, {"CDN"}));
    sizes = {{mine("Store"), 1}, {mine("Logs"), 2}, {shared("CDN"), 3}};
    refuseThePassword();
    scanAndMeasure();
    model->uninstall();
    dispatcher->settle();
    model->setConfirmingDataDeletion(true);
    Published expected = published();
    ASSERT_TRUE(expected.notice.has_value());
    ASSERT_FALSE(expected.stages.empty());
    ASSERT_FALSE(expected.log.empty());
    ASSERT_FALSE(expected.removed.isEmpty());
    ASSERT_EQ(expected.sizes, sizes);

    found = {};
    model->scan();
    expected.phase = Model::Scanning{};
    EXPECT_EQ(published(), expected);

    dispatcher->settle();
    expected.phase = Model::Ready{};
    expected.inventory = {};
    expected.selectedData = {};
    expected.sizes = {};
    EXPECT_EQ(published(), expected);
}

TEST_F(ModelScan, TellsBeforeEachChange) {
    findData({"Store"});
    sizes = {{mine("Store"), 7}};
    std::vector<Published> seen;
    model->observe([&] { seen.push_back(published()); });
    model->scan();
    ASSERT_EQ(seen.size(), 1U);
    dispatcher->settle();
    ASSERT_EQ(seen.size(), 3U);

    Published expected;
    EXPECT_EQ(seen[0], expected); // before the phase
    EXPECT_EQ(seen[1], expected); // before the result
    expected = test::readyWith(found);
    expected.selectedData = {mine("Store")};
    EXPECT_EQ(seen[2], expected); // before the size
    expected.sizes = sizes;
    EXPECT_EQ(published(), expected);
}

TEST_F(ModelScan, ANewObserverTakesTheOldOnesPlace) {
    int old = 0;
    int fresh = 0;
    model->observe([&old] { ++old; });
    model->observe([&fresh] { ++fresh; });
    model->scan();
    EXPECT_EQ(old, 0);
    EXPECT_EQ(fresh, 1);
}

TEST_F(ModelScan, HoldsTheModelUntilItsResultIsShown) {
    findData({"Store"});
    const std::weak_ptr<Model> held = model;
    model->scan();
    model.reset();
    EXPECT_FALSE(held.expired());
    dispatcher->settle();
    EXPECT_TRUE(held.expired());
    EXPECT_EQ(measured, Paths{mine("Store")});
}

TEST_F(ModelScan, OfATreeFindsWhatIsThere) {
    tree.app(Scope::allUsers, "4.2").agents(Scope::me).settings();
    tree.dataFolder(Scope::me, "Store").dataFolder(Scope::allUsers, "CDN");
    model = std::make_shared<Model>(tree.paths(), dispatcher);
    scan();
    Published expected = test::readyWith(Scanner::scan(tree.paths()));
    expected.selectedData = {mine("Store"), shared("CDN")};
    EXPECT_EQ(published(), expected);
    EXPECT_EQ(published().inventory.installations.size(), 2U);
}

} // namespace
} // namespace kelmar
