#include "discovery/identifiers.hpp"
#include "discovery/inventory.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Paths = std::vector<std::string>;

Installation installed(Scope scope) {
    Installation one;
    one.scope = scope;
    one.app = "/Applications/Kelmar.app";
    return one;
}

DataRoot root(Scope scope, const std::string& path, const Paths& names) {
    DataRoot one{scope, path, {}, {}};
    for (const std::string& name : names) {
        one.folders.push_back({name, "", path + "/" + name, {}});
    }
    return one;
}

const DataRoot mine = root(Scope::me, "/home/ann/Kelmar", {"Store", "Logs"});
const DataRoot shared = root(Scope::allUsers, "/Users/Shared/@Kelmar", {"CDN"});

TEST(Identifiers, AreTheProductsNames) {
    EXPECT_EQ(legacyBundleIdentifier, "com.quobrintal.app");
    EXPECT_EQ(apiAgentLabel, "com.kelmar.api");
    EXPECT_EQ(workerAgentLabel, "com.kelmar.worker");
    EXPECT_EQ(appPackageIdentifier, "com.kelmar.pkg.app");
    EXPECT_EQ(backendIdentifier, "com.kelmar.pkg.backend");
}

TEST(Installation, ItsPathsAreTheAppTheServicesAndTheAgents) {
    Installation one;
    one.app = "/app";
    one.services = "/services";
    one.agents = {"/api", "/worker"};
    one.receipts = {"com.kelmar.pkg.app"};
    EXPECT_EQ(one.paths(), (Paths{"/app", "/services", "/api", "/worker"}));
    one.app.reset();
    EXPECT_EQ(one.paths(), (Paths{"/services", "/api", "/worker"}));
}

TEST(Installation, WithNothingButReceiptsHasNoPaths) {
    Installation one;
    one.receipts = {"com.kelmar.pkg.app"};
    EXPECT_EQ(one.paths(), Paths{});
}

TEST(DataFolder, TheKnownOnesStandInTheirOrder) {
    const std::vector<std::pair<std::string, std::string>> expected{
        {"Database", "Case databases"},
        {"Store", "Imported documents"},
        {"Export", "Exported files"},
        {"CDN", "AI models and tools"},
        {"CDN_remote", "Copy of the AI model source"},
        {"Models", "AI models"},
        {"Staging", "Files waiting to be imported"},
        {"Logs", "Service logs"}};
    std::vector<std::pair<std::string, std::string>> known;
    known.reserve(DataFolder::known.size());
    for (const DataFolder::Known& one : DataFolder::known) {
        known.emplace_back(one.name, one.summary);
    }
    EXPECT_EQ(known, expected);
    EXPECT_TRUE(DataFolder::isKnown("CDN_remote"));
    EXPECT_FALSE(DataFolder::isKnown("cdn"));
    EXPECT_FALSE(DataFolder::isKnown("CDN_"));
}

TEST(Inventory, OfAnEmptyMachineHasNothing) {
    const Inventory none;
    EXPECT_TRUE(none.isEmpty());
    EXPECT_TRUE(none.dataFolders().empty());
    EXPECT_EQ(none.allUsers(), std::nullopt);
    EXPECT_EQ(none.mine(), std::nullopt);
    EXPECT_FALSE(none.needsAdministrator({}));
    EXPECT_FALSE(none.needsAdministrator({"/Users/Shared/@Kelmar/CDN"}));
}

TEST(Inventory, ARunningAppAloneIsNothingToRemove) {
    Inventory running;
    running.appRunning = true;
    EXPECT_TRUE(running.isEmpty());
}

TEST(Inventory, AnythingElseIsSomething) {
    std::vector<Inventory> all(5);
    all[0].installations = {installed(Scope::me)};
    all[1].loadedServices = {"com.kelmar.api"};
    all[2].settings = {"/s"};
    all[3].keychainItems = {"Kelmar Safe Storage"};
    all[4].dataRoots = {mine};
    for (const Inventory& one : all) {
        EXPECT_FALSE(one.isEmpty());
    }
}

TEST(Inventory, ItsDataFoldersAreThoseOfAllRootsInOrder) {
    Inventory inventory;
    inventory.dataRoots = {mine, shared};
    Paths paths;
    for (const DataFolder& folder : inventory.dataFolders()) {
        paths.push_back(folder.path);
    }
    EXPECT_EQ(paths, (Paths{"/home/ann/Kelmar/Store", "/home/ann/Kelmar/Logs",
                            "/Users/Shared/@Kelmar/CDN"}));
}

TEST(Inventory, LooksInstallationsUpByScope) {
    Inventory inventory;
    inventory.installations = {installed(Scope::allUsers), installed(Scope::me)};
    EXPECT_EQ(inventory.allUsers(), installed(Scope::allUsers));
    EXPECT_EQ(inventory.mine(), installed(Scope::me));
    inventory.installations.pop_back();
    EXPECT_EQ(inventory.mine(), std::nullopt);
}

TEST(Inventory, AnInstallationForAllUsersAlwaysNeedsAnAdministrator) {
    Inventory inventory;
    inventory.installations = {installed(Scope::allUsers)};
    EXPECT_TRUE(inventory.needsAdministrator({}));
}

TEST(Inventory, AnInstallationOfMineNeedsAnAdministratorWhenItsFilesSaySo) {
    Inventory inventory;
    inventory.installations = {installed(Scope::me)};
    inventory.dataRoots = {mine, shared};
    EXPECT_FALSE(inventory.needsAdministrator({}));
    inventory.installations[0].needsAdministrator = true;
    EXPECT_TRUE(inventory.needsAdministrator({}));
}

TEST(Inventory, OnlyChosenSharedDataNeedsAnAdministrator) {
    Inventory inventory;
    inventory.dataRoots = {mine, shared};
    EXPECT_FALSE(inventory.needsAdministrator({"/home/ann/Kelmar/Store", "/home/ann/Kelmar/Logs"}));
    EXPECT_FALSE(inventory.needsAdministrator({"/Users/Shared/@Kelmar/Models"}));
    EXPECT_TRUE(
        inventory.needsAdministrator({"/home/ann/Kelmar/Store", "/Users/Shared/@Kelmar/CDN"}));
}

} // namespace
} // namespace kelmar
