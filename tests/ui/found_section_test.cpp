#include "tests/ui/page_printing.hpp"
#include "tests/ui/samples.hpp"
#include "ui/sections.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Rows = std::vector<FoundRow>;

const std::string app = "/Applications/Kelmar.app";
const FoundRow running{FoundRow::Symbol{"gearshape.2"}, "Background services",
                       "The API and the Worker, running now"};
const FoundRow startingLater{FoundRow::Symbol{"gearshape.2"}, "Background services",
                             "The API and the Worker, which start when you log in"};
const FoundRow settings{FoundRow::Symbol{"slider.horizontal.3"}, "Settings and permissions",
                        "Preferences, window layout, app logs, caches and privacy permissions"};

Rows rows(const Inventory& inventory, const KelmarPaths& paths = test::machinePaths()) {
    return foundSection(inventory, paths).rows;
}

/// The row of `one` alone.
FoundRow rowOf(const Installation& one, const KelmarPaths& paths = test::machinePaths()) {
    Inventory inventory;
    inventory.installations = {one};
    return rows(inventory, paths).at(0);
}

Installation withoutApp(Scope scope) {
    Installation one = test::installation(test::machinePaths(), scope);
    one.app.reset();
    one.appVersion.reset();
    return one;
}

Installation withoutVersion(Scope scope) {
    Installation one = test::installation(test::machinePaths(), scope);
    one.appVersion.reset();
    return one;
}

TEST(FoundSection, HasItsTitle) {
    EXPECT_EQ(foundSection({}, test::machinePaths()), (FoundSection{{"Found on this Mac"}, {}}));
}

TEST(FoundSection, AnAppHasItsIconItsVersionAndWhomItIsFor) {
    EXPECT_EQ(rowOf(test::installation(test::machinePaths(), Scope::me)),
              (FoundRow{FoundRow::Image{"/Users/ada" + app}, "Kelmar 4.2.1, installed for you",
                        "~/Applications/Kelmar.app and ~/Library/Kelmar"}));
    EXPECT_EQ(rowOf(test::installation(test::machinePaths(), Scope::allUsers)),
              (FoundRow{FoundRow::Image{app}, "Kelmar 4.2.1, installed for all users",
                        "/Applications/Kelmar.app and /Library/Kelmar"}));
}

TEST(FoundSection, AnAppMayHaveNoVersion) {
    EXPECT_EQ(rowOf(withoutVersion(Scope::me)).title, "Kelmar, installed for you");
    EXPECT_EQ(rowOf(withoutVersion(Scope::allUsers)).title, "Kelmar, installed for all users");
}

TEST(FoundSection, AnAppWithoutServicesStandsAlone) {
    Installation one = test::installation(test::machinePaths(), Scope::me);
    one.services.reset();
    EXPECT_EQ(rowOf(one).detail, "~/Applications/Kelmar.app");
}

TEST(FoundSection, ServicesOutliveTheirApp) {
    EXPECT_EQ(rowOf(withoutApp(Scope::me)),
              (FoundRow{FoundRow::Symbol{"gearshape"},
                        "Kelmar's services, installed for you (the app is already gone)",
                        "~/Library/Kelmar"}));
    EXPECT_EQ(rowOf(withoutApp(Scope::allUsers)),
              (FoundRow{FoundRow::Symbol{"gearshape"},
                        "Kelmar's services, installed for all users (the app is already gone)",
                        "/Library/Kelmar"}));
}

TEST(FoundSection, AVersionWithoutAnAppIsNotShown) {
    Installation one = withoutApp(Scope::me);
    one.appVersion = "4.2";
    EXPECT_EQ(rowOf(one).title, "Kelmar's services, installed for you (the app is already gone)");
}

TEST(FoundSection, AgentsAndRecordsAreTheLastToBeNamed) {
    Installation one = withoutApp(Scope::allUsers);
    one.services.reset();
    EXPECT_EQ(rowOf(one),
              (FoundRow{FoundRow::Symbol{"gearshape"},
                        "Kelmar's services, installed for all users (the app is already gone)",
                        "Its LaunchAgents and install records"}));
}

TEST(FoundSection, PathsUnderATestRootLoseItAndIconsKeepIt) {
    const KelmarPaths paths = test::pathsUnder("/t");
    EXPECT_EQ(rowOf(test::installation(paths, Scope::allUsers), paths),
              (FoundRow{FoundRow::Image{"/t/system" + app}, "Kelmar 4.2.1, installed for all users",
                        "/Applications/Kelmar.app and /Library/Kelmar"}));
    EXPECT_EQ(rowOf(test::installation(paths, Scope::me), paths),
              (FoundRow{FoundRow::Image{"/t/home" + app}, "Kelmar 4.2.1, installed for you",
                        "~/Applications/Kelmar.app and ~/Library/Kelmar"}));
}

TEST(FoundSection, TwoInstallationsComeInTheOrderOfTheInventory) {
    Inventory inventory;
    inventory.installations = {test::installation(test::machinePaths(), Scope::allUsers),
                               withoutApp(Scope::me)};
    const Rows expected{rowOf(inventory.installations[0]), rowOf(inventory.installations[1]),
                        startingLater, settings};
    EXPECT_EQ(rows(inventory), expected);
}

TEST(FoundSection, ServicesThatRunAreSaidToRun) {
    Inventory inventory;
    inventory.installations = {test::installation(test::machinePaths(), Scope::me)};
    inventory.loadedServices = {"com.kelmar.worker"};
    EXPECT_EQ(rows(inventory), (Rows{rowOf(inventory.installations[0]), running, settings}));
}

TEST(FoundSection, ServicesThatStartLaterAreSaidToStart) {
    Inventory inventory;
    inventory.installations = {withoutVersion(Scope::allUsers), withoutApp(Scope::me)};
    inventory.installations[0].agents.clear();
    inventory.installations[1].agents.resize(1);
    EXPECT_EQ(rows(inventory).at(2), startingLater);
}

TEST(FoundSection, AnInstallationWithoutAgentsHasNoBackgroundServices) {
    Inventory inventory;
    inventory.installations = {test::installation(test::machinePaths(), Scope::me)};
    inventory.installations[0].agents.clear();
    EXPECT_EQ(rows(inventory), (Rows{rowOf(inventory.installations[0]), settings}));
}

TEST(FoundSection, LoadedServicesAloneAreARow) {
    Inventory inventory;
    inventory.loadedServices = {"com.kelmar.api"};
    EXPECT_EQ(rows(inventory), Rows{running});
}

TEST(FoundSection, SettingsOrKeychainItemsAloneAreARow) {
    Inventory inventory;
    inventory.settings = {"/s"};
    EXPECT_EQ(rows(inventory), Rows{settings});
    inventory = {};
    inventory.keychainItems = {"Kelmar Safe Storage"};
    EXPECT_EQ(rows(inventory), Rows{settings});
    inventory.loadedServices = {"com.kelmar.api"};
    EXPECT_EQ(rows(inventory), (Rows{running, settings}));
}

TEST(FoundSection, DataAndARunningAppAreNoRows) {
    Inventory inventory;
    inventory.appRunning = true;
    inventory.dataRoots = {test::dataRoot(test::machinePaths(), Scope::me, {"Store"})};
    EXPECT_EQ(rows(inventory), Rows{});
}

} // namespace
} // namespace kelmar
