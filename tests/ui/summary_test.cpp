#include "tests/support/temporary_folder.hpp"
#include "tests/ui/page_printing.hpp"
#include "tests/ui/samples.hpp"
#include "ui/sections.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using SummaryRows = std::vector<SummaryRow>;

SummaryRow done(const std::string& text) {
    return {"checkmark.circle.fill", Tint::green, text};
}

SummaryRow kept(const std::string& text) {
    return {"folder", Tint::secondary, text};
}

const SummaryRow appGone = done("The Kelmar app and its background services are gone.");
const SummaryRow settingsGone = done("Its settings and the permissions you gave it are removed.");
const SummaryRow dataGone = done("Deleted 3 MB of Kelmar data.");

class Summary : public testing::Test {
protected:
    [[nodiscard]] SummaryRows rows() const { return summary(published, tree.paths()); }

    /// Makes the run one that had `names` in my data root and deleted `deleted`, 3 MB each.
    void deleteOf(const std::vector<std::string>& names, const std::vector<std::string>& deleted) {
        published.removed.dataRoots = {test::dataRoot(tree.paths(), Scope::me, names)};
        for (const std::string& name : deleted) {
            published.deletedData.push_back(test::dataFolder(tree.paths(), Scope::me, name));
            published.sizes[published.deletedData.back().path] = 3'000'000;
        }
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    UninstallerModel::Published published;
};

TEST_F(Summary, AlwaysNamesTheSettings) {
    EXPECT_EQ(rows(), SummaryRows{settingsGone});
}

TEST_F(Summary, NamesTheAppAfterAnInstallation) {
    published.removed.installations = {test::installation(tree.paths(), Scope::allUsers)};
    EXPECT_EQ(rows(), (SummaryRows{appGone, settingsGone}));
}

TEST_F(Summary, NamesTheAppAfterLoadedServices) {
    published.removed.loadedServices = {"com.kelmar.api"};
    EXPECT_EQ(rows(), (SummaryRows{appGone, settingsGone}));
}

TEST_F(Summary, IsOfWhatWasThereNotOfWhatIs) {
    published.inventory.installations = {test::installation(tree.paths(), Scope::me)};
    published.inventory.loadedServices = {"com.kelmar.api"};
    published.inventory.dataRoots = {test::dataRoot(tree.paths(), Scope::me, {"Store"})};
    published.selectedData = {test::dataFolder(tree.paths(), Scope::me, "Store").path};
    tree.dataFolder(Scope::me, "Store");
    EXPECT_EQ(rows(), SummaryRows{settingsGone});
}

TEST_F(Summary, OtherThingsDoNotNameTheApp) {
    published.removed.appRunning = true;
    published.removed.settings = {"/s"};
    published.removed.keychainItems = {"Kelmar Safe Storage"};
    EXPECT_EQ(rows(), SummaryRows{settingsGone});
}

TEST_F(Summary, SaysHowMuchDataWasDeleted) {
    deleteOf({"Store"}, {"Store"});
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, dataGone}));
    published.sizes.begin()->second = 0;
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, done("Deleted Empty of Kelmar data.")}));
}

TEST_F(Summary, AddsTheSizesOfAllThatWasDeleted) {
    deleteOf({"Store", "Logs"}, {"Store", "Logs"});
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, done("Deleted 6 MB of Kelmar data.")}));
}

TEST_F(Summary, DoesNotKnowTheSizeOfWhatWasNotMeasured) {
    deleteOf({"Store", "Logs"}, {"Store", "Logs"});
    published.sizes.erase(published.sizes.begin());
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, done("Deleted your Kelmar data.")}));
}

TEST_F(Summary, DataThatWasNotChosenIsKept) {
    tree.dataFolder(Scope::me, "Store").otherItem(Scope::me, "notes.txt");
    deleteOf({"Store"}, {});
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, kept("Kept your Kelmar data in ~/Kelmar.")}));
}

TEST_F(Summary, ARootThatWasNotTouchedIsKeptThoughNothingMattersInIt) {
    tree.otherItem(Scope::me, ".DS_Store");
    deleteOf({"Store"}, {});
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, kept("Kept your Kelmar data in ~/Kelmar.")}));
}

TEST_F(Summary, ARootThatIsGoneHasNoRow) {
    deleteOf({"Store"}, {"Store"});
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, dataGone}));
    deleteOf({"Store"}, {});
    published.deletedData.clear();
    EXPECT_EQ(rows(), SummaryRows{settingsGone});
}

TEST_F(Summary, ARootThatCannotBeListedHasNoRow) {
    tree.file(tree.paths().dataRoot(Scope::me), "a file in the folder's place");
    deleteOf({"Store"}, {});
    EXPECT_EQ(rows(), SummaryRows{settingsGone});
    deleteOf({"Store"}, {"Store"});
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, dataGone}));
}

TEST_F(Summary, ARootWithNothingLeftHasNoRow) {
    tree.folder(tree.paths().dataRoot(Scope::me));
    deleteOf({"Store"}, {"Store"});
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, dataGone}));
}

TEST_F(Summary, NamesThatNeverCountDoNotCount) {
    tree.otherItem(Scope::me, ".DS_Store").otherItem(Scope::me, ".localized");
    deleteOf({"Store"}, {"Store"});
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, dataGone}));
    tree.dataFolder(Scope::me, "Logs");
    EXPECT_EQ(rows(), (SummaryRows{settingsGone, dataGone,
                                   kept("Kept ~/Kelmar, which still holds Logs.")}));
}

TEST_F(Summary, ListsWhatARootStillHolds) {
    deleteOf({"Store", "Logs", "CDN"}, {"Store"});
    tree.dataFolder(Scope::me, "Logs");
    EXPECT_EQ(rows().at(2), kept("Kept ~/Kelmar, which still holds Logs."));
    tree.dataFolder(Scope::me, "CDN");
    EXPECT_EQ(rows().at(2), kept("Kept ~/Kelmar, which still holds CDN and Logs."));
    tree.otherItem(Scope::me, "notes.txt");
    EXPECT_EQ(rows().at(2), kept("Kept ~/Kelmar, which still holds CDN, Logs, and notes.txt."));
}

TEST_F(Summary, AFolderThatCouldNotBeDeletedIsStillHeld) {
    tree.dataFolder(Scope::me, "Store");
    deleteOf({"Store"}, {"Store"});
    EXPECT_EQ(rows().at(2), kept("Kept ~/Kelmar, which still holds Store."));
}

TEST_F(Summary, EachRootIsJudgedByItself) {
    tree.dataFolder(Scope::me, "Logs").dataFolder(Scope::allUsers, "CDN");
    deleteOf({"Store", "Logs"}, {"Store"});
    published.removed.dataRoots.push_back(
        test::dataRoot(tree.paths(), Scope::allUsers, {"CDN", "Models"}));
    EXPECT_EQ(rows(),
              (SummaryRows{settingsGone, dataGone, kept("Kept ~/Kelmar, which still holds Logs."),
                           kept("Kept your Kelmar data in /Users/Shared/@Kelmar.")}));
}

TEST_F(Summary, BothRootsMayHaveLostData) {
    tree.dataFolder(Scope::me, "Logs").dataFolder(Scope::allUsers, "Models");
    deleteOf({"Store", "Logs"}, {"Store"});
    published.removed.dataRoots.push_back(
        test::dataRoot(tree.paths(), Scope::allUsers, {"CDN", "Models"}));
    published.deletedData.push_back(test::dataFolder(tree.paths(), Scope::allUsers, "CDN"));
    published.sizes[published.deletedData.back().path] = 0;
    EXPECT_EQ(rows(),
              (SummaryRows{settingsGone, dataGone, kept("Kept ~/Kelmar, which still holds Logs."),
                           kept("Kept /Users/Shared/@Kelmar, which still holds Models.")}));
}

TEST_F(Summary, HasEverythingInItsOrder) {
    tree.dataFolder(Scope::me, "Logs").dataFolder(Scope::allUsers, "Models");
    deleteOf({"Store"}, {"Store"});
    published.removed.installations = {test::installation(tree.paths(), Scope::me)};
    published.removed.dataRoots = {
        test::dataRoot(tree.paths(), Scope::allUsers, {"Models"}),
        test::dataRoot(tree.paths(), Scope::me, {"Store", "Logs"}),
    };
    EXPECT_EQ(rows(), (SummaryRows{appGone, settingsGone, dataGone,
                                   kept("Kept your Kelmar data in /Users/Shared/@Kelmar."),
                                   kept("Kept ~/Kelmar, which still holds Logs.")}));
}

} // namespace
} // namespace kelmar
