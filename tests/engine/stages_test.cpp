#include "engine/uninstaller.hpp"
#include "tests/engine/samples.hpp"
#include "tests/support/mac_tree.hpp"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using test::installed;
using Stage = Uninstaller::Stage;
using Stages = std::vector<Uninstaller::TitledStage>;

const Uninstaller::TitledStage closing{Stage::close, "Closing Kelmar and its background services"};
const Uninstaller::TitledStage forAllUsers{Stage::administrator,
                                           "Removing Kelmar for all users of this Mac"};
const Uninstaller::TitledStage ofTheSystem{Stage::administrator,
                                           "Removing files only an administrator can delete"};
const Uninstaller::TitledStage shared{Stage::administrator, "Deleting the shared Kelmar data"};
const Uninstaller::TitledStage account{
    Stage::account, "Removing Kelmar, its settings and permissions from your account"};
const Uninstaller::TitledStage settings{
    Stage::account, "Removing Kelmar's settings and permissions from your account"};
const Uninstaller::TitledStage data{Stage::data, "Deleting your Kelmar data"};

DataRoot dataRoot(Scope scope) {
    const std::string path = scope == Scope::me ? "/mine" : "/shared";
    return {scope, path, {{"Store", "", path + "/Store", {}}}, {}};
}

Stages stages(const Inventory& inventory, const std::set<std::string>& selected = {}) {
    return Uninstaller(test::pathsUnder("/t"), inventory, selected).stages();
}

TEST(Stages, OfNothingAreNone) {
    EXPECT_EQ(stages({}), Stages{});
    EXPECT_EQ(stages({}, {"/mine/Store"}), Stages{});
}

TEST(Stages, ARunningAppAloneIsClosed) {
    Inventory inventory;
    inventory.appRunning = true;
    EXPECT_EQ(stages(inventory), Stages{closing});
}

TEST(Stages, LoadedServicesAloneAreClosed) {
    Inventory inventory;
    inventory.loadedServices = {"com.kelmar.api"};
    EXPECT_EQ(stages(inventory), Stages{closing});
}

TEST(Stages, SettingsAndKeychainItemsAloneAreTheAccounts) {
    Inventory inventory;
    inventory.settings = {"/s"};
    EXPECT_EQ(stages(inventory), Stages{settings});
    inventory = {};
    inventory.keychainItems = {"Kelmar Safe Storage"};
    EXPECT_EQ(stages(inventory), Stages{settings});
}

TEST(Stages, AnInstallationOfMineHasNoAdministrator) {
    Inventory inventory;
    inventory.installations = {installed(Scope::me)};
    EXPECT_EQ(stages(inventory), (Stages{closing, account}));
}

TEST(Stages, FilesOfTheSystemNeedTheAdministrator) {
    Inventory inventory;
    inventory.installations = {installed(Scope::me, true)};
    EXPECT_EQ(stages(inventory), (Stages{closing, ofTheSystem, account}));
}

TEST(Stages, AnInstallationForAllUsersNamesTheAdministratorsStage) {
    Inventory inventory;
    inventory.installations = {installed(Scope::allUsers)};
    EXPECT_EQ(stages(inventory), (Stages{closing, forAllUsers}));
    inventory.installations = {installed(Scope::allUsers), installed(Scope::me, true)};
    EXPECT_EQ(stages(inventory), (Stages{closing, forAllUsers, account}));
}

TEST(Stages, ChosenSharedDataAloneIsTheAdministrators) {
    Inventory inventory;
    inventory.dataRoots = {dataRoot(Scope::me), dataRoot(Scope::allUsers)};
    EXPECT_EQ(stages(inventory), Stages{});
    EXPECT_EQ(stages(inventory, {"/shared/Store"}), Stages{shared});
    inventory.installations = {installed(Scope::me)};
    EXPECT_EQ(stages(inventory, {"/shared/Store"}), (Stages{closing, shared, account}));
}

TEST(Stages, ChosenDataOfMineIsItsOwnStage) {
    Inventory inventory;
    inventory.dataRoots = {dataRoot(Scope::me), dataRoot(Scope::allUsers)};
    EXPECT_EQ(stages(inventory, {"/mine/Store"}), Stages{data});
    EXPECT_EQ(stages(inventory, {"/mine/Store", "/shared/Store"}), (Stages{shared, data}));
    EXPECT_EQ(stages(inventory, {"/mine/Logs"}), Stages{});
}

} // namespace
} // namespace kelmar
