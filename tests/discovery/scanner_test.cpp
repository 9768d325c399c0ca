#include "discovery/scanner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kelmar {
namespace {

class Scan : public testing::Test {
protected:
    [[nodiscard]] Inventory scanned() const { return Scanner::scan(tree.paths()); }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_F(Scan, OfAnEmptyRootFindsNothing) {
    EXPECT_EQ(scanned(), Inventory{});
}

TEST_F(Scan, OfARootThatDoesNotExistFindsNothing) {
    EXPECT_EQ(Scanner::scan(test::pathsUnder(folder / "missing")), Inventory{});
    EXPECT_EQ(Scanner::scan(test::pathsUnder("/etc/passwd")), Inventory{});
}

TEST_F(Scan, OfOneDataFolderFindsOneDataRootAndNoInstallation) {
    tree.dataFolder(Scope::me, "Store");
    const std::string root = tree.paths().home + "/Kelmar";
    Inventory expected;
    expected.dataRoots = {
        {Scope::me, root, {{"Store", "Imported documents", root + "/Store", {}}}, {}}};
    EXPECT_EQ(scanned(), expected);
}

TEST_F(Scan, InstallationsForAllUsersComeFirstAndDataOfMine) {
    tree.everything();
    const Inventory inventory = scanned();
    ASSERT_EQ(inventory.installations.size(), 2U);
    EXPECT_EQ(inventory.installations[0], Scanner::installation(Scope::allUsers, tree.paths()));
    EXPECT_EQ(inventory.installations[1], Scanner::installation(Scope::me, tree.paths()));
    EXPECT_EQ(inventory.settings, Scanner::settings(tree.paths()));
    ASSERT_EQ(inventory.dataRoots.size(), 2U);
    EXPECT_EQ(inventory.dataRoots[0], Scanner::dataRoot(Scope::me, tree.paths()));
    EXPECT_EQ(inventory.dataRoots[1], Scanner::dataRoot(Scope::allUsers, tree.paths()));
}

TEST_F(Scan, UnderATestRootAsksNothingOfTheSystem) {
    tree.everything();
    const Inventory inventory = scanned();
    EXPECT_FALSE(inventory.appRunning);
    EXPECT_TRUE(inventory.loadedServices.empty());
    EXPECT_TRUE(inventory.keychainItems.empty());
}

TEST_F(Scan, MeasuresNothing) {
    tree.everything();
    for (const DataFolder& one : scanned().dataFolders()) {
        EXPECT_EQ(one.bytes, std::nullopt);
    }
}

TEST_F(Scan, ChangesNothing) {
    tree.everything();
    const auto before = test::snapshot(folder.path());
    EXPECT_FALSE(scanned().isEmpty());
    EXPECT_EQ(test::snapshot(folder.path()), before);
}

} // namespace
} // namespace kelmar
