#include "discovery/scanner.hpp"
#include "tests/ui/model_fixture.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Sizes = std::map<std::string, std::int64_t>;

class ModelMeasuring : public test::ModelFixture {
protected:
    void SetUp() override {
        sizes = {{mine("Database"), 1}, {mine("Store"), 20}, {mine("Logs"), 300}};
    }
};

TEST_F(ModelMeasuring, IsOneQuietJobAndNothingOnTheMainThread) {
    findData({"Database", "Store"});
    scan();
    EXPECT_EQ(dispatcher->later.size(), 1U);
    EXPECT_TRUE(dispatcher->initiated.empty());
    EXPECT_TRUE(dispatcher->main.empty());
    EXPECT_TRUE(measured.empty());
    EXPECT_EQ(published().sizes, Sizes{});
}

TEST_F(ModelMeasuring, HandsTheSizesBackOneByOneInTheOrderOfTheList) {
    found.dataRoots = {test::dataRoot(tree.paths(), Scope::me, {"Store", "Database"}),
                       test::dataRoot(tree.paths(), Scope::allUsers, {"CDN"})};
    sizes[shared("CDN")] = 4000;
    scan();
    dispatcher->runOne(dispatcher->later);
    EXPECT_EQ(measured, (Paths{mine("Store"), mine("Database"), shared("CDN")}));
    EXPECT_EQ(published().sizes, Sizes{});
    ASSERT_EQ(dispatcher->main.size(), 3U);
    dispatcher->runOne(dispatcher->main);
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), 20}}));
    dispatcher->runOne(dispatcher->main);
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), 20}, {mine("Database"), 1}}));
    dispatcher->runOne(dispatcher->main);
    EXPECT_EQ(published().sizes,
              (Sizes{{mine("Store"), 20}, {mine("Database"), 1}, {shared("CDN"), 4000}}));
}

TEST_F(ModelMeasuring, HandsASizeBackBeforeTheNextIsMeasured) {
    findData({"Database", "Store"});
    std::vector<std::size_t> waiting;
    model = std::make_shared<Model>(tree.paths(), dispatcher,
                                    Model::Sources{[this](const KelmarPaths&) { return found; },
                                                   [this, &waiting](const std::string&) {
                                                       waiting.push_back(dispatcher->main.size());
                                                       return std::optional<std::int64_t>(1);
                                                   },
                                                   Uninstaller::usualRunner});
    scan();
    dispatcher->runOne(dispatcher->later);
    EXPECT_EQ(waiting, (std::vector<std::size_t>{0, 1}));
}

TEST_F(ModelMeasuring, WhatCannotBeMeasuredIsEmpty) {
    findData({"Export", "Store"});
    scanAndMeasure();
    EXPECT_EQ(published().sizes, (Sizes{{mine("Export"), 0}, {mine("Store"), 20}}));
}

TEST_F(ModelMeasuring, ARescanMeasuresOnlyWhatIsNew) {
    findData({"Store"});
    scanAndMeasure();
    sizes[mine("Store")] = 21;
    findData({"Database", "Store", "Logs"});
    scanAndMeasure();
    EXPECT_EQ(measured, (Paths{mine("Store"), mine("Database"), mine("Logs")}));
    EXPECT_EQ(published().sizes,
              (Sizes{{mine("Database"), 1}, {mine("Store"), 20}, {mine("Logs"), 300}}));
}

TEST_F(ModelMeasuring, ARescanThatFindsTheSameMeasuresNothing) {
    findData({"Database", "Export"});
    scanAndMeasure();
    scan();
    EXPECT_TRUE(dispatcher->later.empty());
    EXPECT_EQ(published().sizes, (Sizes{{mine("Database"), 1}, {mine("Export"), 0}}));
}

TEST_F(ModelMeasuring, ARescanDropsTheSizesOfWhatIsGone) {
    findData({"Database", "Store", "Logs"});
    scanAndMeasure();
    findData({"Store"});
    scan();
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), 20}}));
    findData({"Store", "Logs"});
    scan();
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), 20}}));
    EXPECT_EQ(dispatcher->later.size(), 1U);
}

TEST_F(ModelMeasuring, ARescanDoesNotWaitForTheFirstMeasuring) {
    findData({"Database", "Store"});
    scan();
    findData({"Store", "Logs"});
    scan();
    ASSERT_EQ(dispatcher->later.size(), 2U);
    // The second first: each posts the sizes of the folders that it was given.
    dispatcher->runOne(dispatcher->later, 1);
    EXPECT_EQ(measured, (Paths{mine("Store"), mine("Logs")}));
    dispatcher->runAll(dispatcher->main);
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), 20}, {mine("Logs"), 300}}));
    sizes[mine("Store")] = 22;
    dispatcher->runOne(dispatcher->later);
    dispatcher->runAll(dispatcher->main);
    EXPECT_EQ(published().sizes.at(mine("Store")), 22);
    EXPECT_EQ(published().sizes.at(mine("Logs")), 300);
}

TEST_F(ModelMeasuring, OfWhatHasBeenPostedTheLastCounts) {
    findData({"Store"});
    scan();
    scan();
    dispatcher->runOne(dispatcher->later);
    sizes[mine("Store")] = 23;
    dispatcher->runOne(dispatcher->later);
    dispatcher->runOne(dispatcher->main);
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), 20}}));
    dispatcher->runOne(dispatcher->main);
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), 23}}));
}

TEST_F(ModelMeasuring, ASizeThatComesAfterItsFolderHasGoneLeavesWithTheNextScan) {
    findData({"Store"});
    scan();
    found = {};
    scanAndMeasure();
    scan();
    EXPECT_EQ(published(), test::readyWith({}));
}

TEST_F(ModelMeasuring, GoesOnDuringARun) {
    findData({"Store"});
    scan();
    model->uninstall();
    dispatcher->runAll(dispatcher->later);
    dispatcher->runAll(dispatcher->main);
    EXPECT_TRUE(model->isWorking());
    EXPECT_EQ(model->bytes(published().deletedData), 20);
}

TEST_F(ModelMeasuring, OfATreeIsAsTheDiskHasIt) {
    tree.dataFolder(Scope::me, "Store", 50'000).dataFolder(Scope::allUsers, "CDN", 3'000);
    model = std::make_shared<Model>(tree.paths(), dispatcher);
    scanAndMeasure();
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), Scanner::size(mine("Store")).value()},
                                        {shared("CDN"), Scanner::size(shared("CDN")).value()}}));
    EXPECT_GE(published().sizes.at(mine("Store")), 50'000);
}

TEST_F(ModelMeasuring, OfAFolderThatIsGoneByThenIsEmpty) {
    findData({"Store"});
    model = std::make_shared<Model>(tree.paths(), dispatcher,
                                    Model::Sources{[this](const KelmarPaths&) { return found; },
                                                   Scanner::size, Uninstaller::usualRunner});
    scanAndMeasure();
    EXPECT_EQ(published().sizes, (Sizes{{mine("Store"), 0}}));
}

TEST_F(ModelMeasuring, TheBytesOfFoldersAreTheirSum) {
    findData({"Database", "Store", "Logs"});
    scanAndMeasure();
    const std::vector<DataFolder> folders = found.dataFolders();
    EXPECT_EQ(model->bytes(folders), 321);
    EXPECT_EQ(model->bytes({folders[0], folders[2]}), 301);
    EXPECT_EQ(model->bytes({}), 0);
}

TEST_F(ModelMeasuring, TheBytesAreUnknownWhileOneFolderIsNotMeasured) {
    findData({"Database", "Store", "Logs"});
    scan();
    dispatcher->runOne(dispatcher->later);
    dispatcher->runOne(dispatcher->main);
    dispatcher->runOne(dispatcher->main);
    const std::vector<DataFolder> folders = found.dataFolders();
    EXPECT_EQ(model->bytes({folders[0], folders[1]}), 21);
    EXPECT_EQ(model->bytes({folders[2]}), std::nullopt);
    EXPECT_EQ(model->bytes({folders[2], folders[0]}), std::nullopt);
    EXPECT_EQ(model->bytes(folders), std::nullopt);
}

TEST_F(ModelMeasuring, TheLargestSumStillFits) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    sizes = {{mine("Store"), most - 1}, {mine("Logs"), 1}};
    findData({"Store", "Logs"});
    scanAndMeasure();
    EXPECT_EQ(model->bytes(found.dataFolders()), most);
}

using ModelMeasuringDeathTest = ModelMeasuring;

TEST_F(ModelMeasuringDeathTest, ASumThatDoesNotFitEndsTheProgram) {
    sizes = {{mine("Store"), std::numeric_limits<std::int64_t>::max()}, {mine("Logs"), 1}};
    findData({"Store", "Logs"});
    scanAndMeasure();
    EXPECT_DEATH(static_cast<void>(model->bytes(found.dataFolders())),
                 "^Kelmar Uninstaller: broken contract: the sizes of the data folders add up to "
                 "more than 2\\^63 bytes\n$");
}

} // namespace
} // namespace kelmar
