#include "discovery/scanner.hpp"
#include "engine/uninstaller.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Failures = std::vector<Uninstaller::Failure>;

class Verification : public testing::Test {
protected:
    [[nodiscard]] std::string home(const std::string& rest) const {
        return tree.paths().home + rest;
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_F(Verification, OfAnEmptyMachineFindsNothing) {
    EXPECT_EQ(Uninstaller(tree.paths(), {}, {}).verify(), Failures{});
}

TEST_F(Verification, NamesInstallationsSettingsAndChosenDataInThisOrder) {
    tree.services(Scope::allUsers).services(Scope::me).temporaryFiles();
    tree.dataFolder(Scope::me, "Store")
        .dataFolder(Scope::me, "Logs")
        .dataFolder(Scope::allUsers, "CDN");
    const std::string store = home("/Kelmar/Store");
    const std::string cdn = tree.paths().dataRoot(Scope::allUsers) + "/CDN";
    const std::string temporary = tree.paths().temporaryDirectory;
    EXPECT_EQ(Uninstaller(tree.paths(), {}, {cdn, store}).verify(),
              (Failures{{tree.paths().services(Scope::allUsers), "it is still there"},
                        {home("/Library/Kelmar"), "it is still there"},
                        {temporary + "/Kelmar", "it is still there"},
                        {temporary + "/Kelmar_temp", "it is still there"},
                        {temporary + "/sd-soffice-diagram", "it is still there"},
                        {store, "it is still there"},
                        {cdn, "it is still there"}}));
}

TEST_F(Verification, DataThatWasToBeKeptIsNoLeftover) {
    tree.dataFolder(Scope::me, "Store");
    EXPECT_EQ(Uninstaller(tree.paths(), {}, {}).verify(), Failures{});
}

TEST_F(Verification, KeepsRmsReasonAndListsThePathOnce) {
    tree.services(Scope::me);
    Uninstaller engine(tree.paths(), {}, {});
    engine.failures = {{home("/Library/Kelmar"), "rm: no"}};
    EXPECT_EQ(engine.verify(), (Failures{{home("/Library/Kelmar"), "rm: no"}}));
}

TEST_F(Verification, DropsAFailureAboutAPathThatHasGone) {
    tree.link(home("/dangling"), "nowhere");
    Uninstaller engine(tree.paths(), {}, {});
    engine.failures = {{home("/gone"), "rm: no"}, {home("/dangling"), "rm: no"}};
    EXPECT_EQ(engine.verify(), (Failures{{home("/dangling"), "rm: no"}}));
}

TEST_F(Verification, KeepsFailuresThatAreNoPaths) {
    Uninstaller engine(tree.paths(), {}, {});
    const Failures labels{{"Administrator step", "it stopped before it finished"},
                          {"Install record com.kelmar.pkg.app", "no"},
                          {"Administrator step", "it stopped before it finished"}};
    engine.failures = labels;
    EXPECT_EQ(engine.verify(), labels);
    EXPECT_EQ(engine.failures, labels) << "and changes nothing";
}

} // namespace
} // namespace kelmar
