#include "discovery/scanner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Names = std::vector<std::string>;

class DataRootScan : public testing::TestWithParam<Scope> {
protected:
    [[nodiscard]] std::optional<DataRoot> scanned() const {
        return Scanner::dataRoot(GetParam(), tree.paths());
    }

    [[nodiscard]] std::string root() const { return tree.paths().dataRoot(GetParam()); }

    [[nodiscard]] Names folderNames() const {
        const DataRoot found = scanned().value();
        Names names;
        for (const DataFolder& one : found.folders) {
            names.push_back(one.name);
        }
        return names;
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_P(DataRootScan, ListsKnownFoldersInTableOrderAndTheRestByName) {
    tree.dataFolder(GetParam(), "Logs").dataFolder(GetParam(), "Store");
    tree.otherItem(GetParam(), "b").otherItem(GetParam(), "A").otherItem(GetParam(), ".localized");
    DataRoot expected{GetParam(), root(), {}, {"A", "b"}};
    expected.folders = {{"Store", "Imported documents", root() + "/Store", {}},
                        {"Logs", "Service logs", root() + "/Logs", {}}};
    EXPECT_EQ(scanned(), expected);
}

TEST_P(DataRootScan, FindsAllEightFolders) {
    for (const DataFolder::Known& known : DataFolder::known) {
        tree.dataFolder(GetParam(), known.name);
    }
    EXPECT_EQ(folderNames(), (Names{"Database", "Store", "Export", "CDN", "CDN_remote", "Models",
                                    "Staging", "Logs"}));
}

TEST_P(DataRootScan, AFolderWithoutAnyKnownNameIsNotTheProducts) {
    tree.otherItem(GetParam(), "notes.txt").otherItem(GetParam(), ".DS_Store");
    tree.otherItem(GetParam(), "store").otherItem(GetParam(), "Logs ");
    EXPECT_EQ(scanned(), std::nullopt);
}

TEST_P(DataRootScan, AKnownNameCountsWhateverItIs) {
    tree.otherItem(GetParam(), "Store").link(root() + "/CDN", "nowhere");
    EXPECT_EQ(folderNames(), (Names{"Store", "CDN"}));
}

TEST_P(DataRootScan, WhatIsNoFolderHoldsNoData) {
    EXPECT_EQ(scanned(), std::nullopt);
    tree.file(root());
    EXPECT_EQ(scanned(), std::nullopt);
}

TEST_P(DataRootScan, OddNamesAreOtherItemsUnharmed) {
    tree.dataFolder(GetParam(), "Store");
    const Names odd{"\n", "\"quoted'", "\xF0\x9F\x98\x80", "\xFF"};
    for (const std::string& name : odd) {
        tree.otherItem(GetParam(), name);
    }
    EXPECT_EQ(scanned().value().otherItems, odd);
}

TEST_P(DataRootScan, MayBeALinkToAnotherFolder) {
    tree.folder(folder / "disk/Store").link(root(), folder / "disk");
    EXPECT_EQ(folderNames(), Names{"Store"});
    EXPECT_EQ(scanned().value().folders[0].path, root() + "/Store");
}

INSTANTIATE_TEST_SUITE_P(BothScopes, DataRootScan, testing::Values(Scope::allUsers, Scope::me));

} // namespace
} // namespace kelmar
