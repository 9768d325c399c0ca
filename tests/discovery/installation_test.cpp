#include "discovery/scanner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <unistd.h>

namespace kelmar {
namespace {

using test::MacTree;

class InstallationScan : public testing::TestWithParam<Scope> {
protected:
    [[nodiscard]] Installation scanned(Scope scope) const {
        return Scanner::installation(scope, tree.paths());
    }

    test::TemporaryFolder folder;
    MacTree tree{folder / "t"};
};

TEST_P(InstallationScan, FindsEverythingOfItsScope) {
    tree.app(GetParam(), "4.2.1").services(GetParam()).agents(GetParam());
    Installation expected;
    expected.scope = GetParam();
    expected.app = tree.paths().app(GetParam());
    expected.appVersion = "4.2.1";
    expected.services = tree.paths().services(GetParam());
    expected.agents = tree.paths().agents(GetParam());
    EXPECT_EQ(scanned(GetParam()), expected);
}

TEST_P(InstallationScan, FindsNothingOfTheOtherScope) {
    tree.app(GetParam(), "4.2.1").services(GetParam()).agents(GetParam());
    const Scope other = GetParam() == Scope::me ? Scope::allUsers : Scope::me;
    Installation nothing;
    nothing.scope = other;
    EXPECT_EQ(scanned(other), nothing);
}

TEST_P(InstallationScan, EachPartMayStandAlone) {
    tree.agents(GetParam());
    std::filesystem::remove(tree.paths().agents(GetParam())[0]);
    const Installation found = scanned(GetParam());
    EXPECT_EQ(found.app, std::nullopt);
    EXPECT_EQ(found.services, std::nullopt);
    EXPECT_EQ(found.agents, std::vector<std::string>{tree.paths().agents(GetParam())[1]});
}

TEST_P(InstallationScan, ADanglingLinkInTheAppsPlaceIsAnAppWithoutVersion) {
    tree.link(tree.paths().app(GetParam()), "nowhere");
    EXPECT_EQ(scanned(GetParam()).app, tree.paths().app(GetParam()));
    EXPECT_EQ(scanned(GetParam()).appVersion, std::nullopt);
}

TEST_P(InstallationScan, AnAppWithAnUnreadableVersionRecordHasNoVersion) {
    tree.file(tree.paths().app(GetParam()) + "/Contents/Info.plist", "garbage");
    EXPECT_TRUE(scanned(GetParam()).app);
    EXPECT_EQ(scanned(GetParam()).appVersion, std::nullopt);
}

TEST_P(InstallationScan, UnderATestRootThereAreNoReceipts) {
    tree.app(GetParam(), "4.2.1");
    EXPECT_TRUE(scanned(GetParam()).receipts.empty());
}

INSTANTIATE_TEST_SUITE_P(BothScopes, InstallationScan, testing::Values(Scope::allUsers, Scope::me));

class ForeignFiles : public InstallationScan {
protected:
    void SetUp() override {
        if (::getuid() != 0) {
            GTEST_SKIP() << "only root can give a file to another user";
        }
        tree.app(Scope::me, "4").services(Scope::me).agents(Scope::me);
    }

    static void giveAway(const std::string& path) {
        ASSERT_EQ(::lchown(path.c_str(), 12345, 12345), 0);
    }
};

TEST_F(ForeignFiles, NoneMeansThatNoAdministratorIsNeeded) {
    EXPECT_FALSE(scanned(Scope::me).needsAdministrator);
}

TEST_F(ForeignFiles, InTheServicesFolderNeedAnAdministrator) {
    giveAway(tree.paths().services(Scope::me) + "/lib/models.conf");
    EXPECT_TRUE(scanned(Scope::me).needsAdministrator);
}

TEST_F(ForeignFiles, AmongTheAgentsNeedAnAdministrator) {
    giveAway(tree.paths().agents(Scope::me)[1]);
    EXPECT_TRUE(scanned(Scope::me).needsAdministrator);
}

TEST_F(ForeignFiles, OfAllUsersAreNotLookedAt) {
    tree.app(Scope::allUsers, "4");
    giveAway(tree.paths().app(Scope::allUsers));
    EXPECT_FALSE(scanned(Scope::allUsers).needsAdministrator);
}

} // namespace
} // namespace kelmar
