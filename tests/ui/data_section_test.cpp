#include "tests/ui/page_printing.hpp"
#include "tests/ui/samples.hpp"
#include "ui/sections.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Published = UninstallerModel::Published;

const std::string warning =
    "Cases, imported documents, exports, AI models and logs. You can't undo this.";
const std::string mineStays = "Your data stays in ~/Kelmar. If you install Kelmar for your account "
                              "again, it picks up where you left off.";
const std::string sharedStays =
    "The shared data stays in /Users/Shared/@Kelmar. Kelmar now installs for one account at a time "
    "and doesn't use that folder.";

class DataSectionTest : public testing::Test {
protected:
    DataSectionTest() {
        published.inventory.dataRoots = {
            test::dataRoot(paths, Scope::me, {"Store", "Logs"}),
            test::dataRoot(paths, Scope::allUsers, {"CDN"}),
        };
    }

    [[nodiscard]] DataSection section(bool showFolders = false) const {
        return dataSection(published, paths, showFolders);
    }

    void choose(const std::vector<std::string>& names) {
        for (const DataFolder& folder : published.inventory.dataFolders()) {
            for (const std::string& name : names) {
                if (folder.name == name) {
                    published.selectedData.insert(folder.path);
                }
            }
        }
    }

    void measure(Scope scope, const std::string& name, std::int64_t bytes) {
        published.sizes[test::dataFolder(paths, scope, name).path] = bytes;
    }

    [[nodiscard]] FolderRow row(Scope scope, const std::string& name, bool checked,
                                std::optional<std::int64_t> bytes) const {
        return {
            paths.dataRoot(scope) + "/" + name, name, "What is in " + name, checked, {bytes, name}};
    }

    KelmarPaths paths = test::machinePaths();
    Published published;
};

TEST_F(DataSectionTest, OnIsAWarningWithASize) {
    choose({"Store", "CDN"});
    measure(Scope::me, "Store", 5);
    measure(Scope::allUsers, "CDN", 7);
    const DataSection expected{{"Your data"},
                               "Delete Kelmar data",
                               true,
                               {12, "Delete Kelmar data"},
                               warning,
                               {"Choose folders", Action::toggleFolders},
                               {}};
    EXPECT_EQ(section(), expected);
}

TEST_F(DataSectionTest, OffSaysWhereTheDataStays) {
    const DataSection expected{{"Your data"},
                               "Delete Kelmar data",
                               false,
                               {0, "Delete Kelmar data"},
                               mineStays + " " + sharedStays,
                               {"Choose folders", Action::toggleFolders},
                               {}};
    EXPECT_EQ(section(), expected);
}

TEST_F(DataSectionTest, OffNamesMyRootAlone) {
    published.inventory.dataRoots.pop_back();
    EXPECT_EQ(section().line, mineStays);
}

TEST_F(DataSectionTest, OffNamesTheSharedRootAlone) {
    published.inventory.dataRoots.erase(published.inventory.dataRoots.begin());
    EXPECT_EQ(section().line, sharedStays);
}

TEST_F(DataSectionTest, OffNamesMyRootFirstWhereverItStands) {
    std::swap(published.inventory.dataRoots[0], published.inventory.dataRoots[1]);
    EXPECT_EQ(section().line, mineStays + " " + sharedStays);
}

TEST_F(DataSectionTest, OffNamesTheFirstRootOfAScope) {
    published.inventory.dataRoots = {{Scope::me, "/first", {}, {}}, {Scope::me, "/second", {}, {}}};
    EXPECT_EQ(section().line, "Your data stays in /first. If you install Kelmar for your account "
                              "again, it picks up where you left off.");
}

TEST_F(DataSectionTest, OneChosenFolderIsOn) {
    choose({"Logs"});
    EXPECT_TRUE(section().on);
    EXPECT_EQ(section().line, warning);
}

TEST_F(DataSectionTest, TheTotalIsOfTheChosenFoldersAlone) {
    choose({"Logs"});
    measure(Scope::me, "Store", 5'000'000);
    measure(Scope::me, "Logs", 3'000'000);
    EXPECT_EQ(section().total.text(), "3 MB");
    choose({"Store"});
    EXPECT_EQ(section().total.text(), "8 MB");
}

TEST_F(DataSectionTest, TheTotalIsMeasuringUntilEveryChosenFolderIsMeasured) {
    choose({"Store", "Logs"});
    EXPECT_EQ(section().total.text(), "Measuring…");
    measure(Scope::me, "Logs", 3'000'000);
    EXPECT_EQ(section().total.text(), "Measuring…");
    measure(Scope::me, "Store", 0);
    EXPECT_EQ(section().total.text(), "3 MB");
}

TEST_F(DataSectionTest, TheTotalOfNothingIsEmpty) {
    EXPECT_EQ(section().total.text(), "Empty");
    choose({"Store"});
    measure(Scope::me, "Store", 0);
    EXPECT_EQ(section().total.text(), "Empty");
}

TEST_F(DataSectionTest, TheFoldersAreUnfoldedByAButton) {
    EXPECT_EQ(section(false).folders, (Button{"Choose folders", Action::toggleFolders}));
    EXPECT_EQ(section(false).lists.size(), 0U);
    EXPECT_EQ(section(true).folders, (Button{"Hide folders", Action::toggleFolders}));
    EXPECT_EQ(section(true).lists.size(), 2U);
}

TEST_F(DataSectionTest, UnfoldingChangesNothingElse) {
    choose({"Store"});
    DataSection expected = section(true);
    expected.lists.clear();
    expected.folders.text = "Choose folders";
    EXPECT_EQ(section(false), expected);
}

TEST_F(DataSectionTest, EachRootHasItsListAndEachFolderItsRow) {
    choose({"Logs", "CDN"});
    measure(Scope::me, "Store", 1'500'000);
    measure(Scope::me, "Logs", 0);
    const std::vector<FolderList> lists = section(true).lists;
    ASSERT_EQ(lists.size(), 2U);
    EXPECT_EQ(lists[0].heading, "In your home folder, ~/Kelmar");
    EXPECT_EQ(lists[0].rows, (std::vector{row(Scope::me, "Store", false, 1'500'000),
                                          row(Scope::me, "Logs", true, 0)}));
    EXPECT_EQ(lists[0].otherItems, std::nullopt);
    EXPECT_EQ(lists[1].heading, "Shared by all users, /Users/Shared/@Kelmar");
    EXPECT_EQ(lists[1].rows, std::vector{row(Scope::allUsers, "CDN", true, std::nullopt)});
    EXPECT_EQ(lists[1].otherItems, std::nullopt);
}

TEST_F(DataSectionTest, AFoldersSizeIsWrittenAndSpoken) {
    measure(Scope::me, "Store", 1'500'000);
    measure(Scope::me, "Logs", 0);
    const std::vector<FolderList> lists = section(true).lists;
    EXPECT_EQ(lists[0].rows[0].size.text(), "1.5 MB");
    EXPECT_EQ(lists[0].rows[0].size.accessibleName(), "Store, 1.5 MB");
    EXPECT_EQ(lists[0].rows[1].size.text(), "Empty");
    EXPECT_EQ(lists[1].rows[0].size.text(), "Measuring…");
    EXPECT_EQ(lists[1].rows[0].size.accessibleName(), "CDN, Measuring…");
}

TEST_F(DataSectionTest, OneOtherItemStays) {
    published.inventory.dataRoots[0].otherItems = {"notes.txt"};
    EXPECT_EQ(section(true).lists[0].otherItems,
              "Also in ~/Kelmar: notes.txt. Kelmar didn't create it, so it stays.");
}

TEST_F(DataSectionTest, SeveralOtherItemsStay) {
    published.inventory.dataRoots[1].otherItems = {"a", "b", "c"};
    EXPECT_EQ(section(true).lists[0].otherItems, std::nullopt);
    EXPECT_EQ(section(true).lists[1].otherItems,
              "Also in /Users/Shared/@Kelmar: a, b, c. Kelmar didn't create these, so they stay.");
    published.inventory.dataRoots[1].otherItems = {"a", "b"};
    EXPECT_EQ(section(true).lists[1].otherItems,
              "Also in /Users/Shared/@Kelmar: a, b. Kelmar didn't create these, so they stay.");
}

TEST_F(DataSectionTest, PathsUnderATestRootAreShownWithoutIt) {
    paths = test::pathsUnder("/t");
    published.inventory.dataRoots = {test::dataRoot(paths, Scope::me, {"Store"}, {"x"}),
                                     test::dataRoot(paths, Scope::allUsers, {"CDN"}, {"y"})};
    const DataSection shown = section(true);
    EXPECT_EQ(shown.line, mineStays + " " + sharedStays);
    EXPECT_EQ(shown.lists[0].heading, "In your home folder, ~/Kelmar");
    EXPECT_EQ(shown.lists[0].rows[0].path, "/t/home/Kelmar/Store");
    EXPECT_EQ(shown.lists[0].otherItems,
              "Also in ~/Kelmar: x. Kelmar didn't create it, so it stays.");
    EXPECT_EQ(shown.lists[1].heading, "Shared by all users, /Users/Shared/@Kelmar");
    EXPECT_EQ(shown.lists[1].otherItems,
              "Also in /Users/Shared/@Kelmar: y. Kelmar didn't create it, so it stays.");
}

} // namespace
} // namespace kelmar
