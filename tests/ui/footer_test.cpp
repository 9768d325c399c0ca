#include "tests/ui/page_printing.hpp"
#include "tests/ui/samples.hpp"
#include "ui/sections.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kelmar {
namespace {

using Model = UninstallerModel;
using Notes = std::vector<FooterNote>;
using Buttons = std::vector<Button>;

const Button quitAlone{"Quit", Action::quit, ButtonKey::defaultAction};
const FooterNote openApp{"exclamationmark.circle", "Kelmar is open and will be closed",
                         "Any job Kelmar is running stops."};
const FooterNote forAllUsers{"lock.fill", "Asks for an administrator's password",
                             "Kelmar is installed for all users of this Mac, and only an "
                             "administrator can remove it."};
const FooterNote ofTheSystem{"lock.fill", "Asks for an administrator's password",
                             "Some of these files belong to the system, and only an administrator "
                             "can remove them."};

Notes notes(const Inventory& inventory, const std::set<std::string>& selected = {}) {
    Model::Published published = test::readyWith(inventory);
    published.selectedData = selected;
    return footer(published).notes;
}

/// What would have both notes, if its phase had any.
Model::Published in(Model::Phase phase) {
    Inventory inventory = test::usualInventory(test::machine);
    inventory.installations = {test::installation(test::machine, Scope::allUsers)};
    inventory.appRunning = true;
    Model::Published published = test::readyWith(inventory);
    published.phase = std::move(phase);
    return published;
}

TEST(Footer, ReadyIsLeftByEscapeAndStartedByReturn) {
    const Footer expected{{},
                          std::nullopt,
                          {{"Quit", Action::quit, ButtonKey::cancelAction},
                           {"Uninstall", Action::uninstallClicked, ButtonKey::defaultAction}}};
    EXPECT_EQ(footer(test::readyWith(test::usualInventory(test::machine))), expected);
}

TEST(Footer, AnyThingFoundCanBeUninstalled) {
    std::vector<Inventory> found(5);
    found[0].installations = {test::installation(test::machine, Scope::me)};
    found[1].loadedServices = {"com.kelmar.api"};
    found[2].settings = {"/s"};
    found[3].keychainItems = {"Kelmar Safe Storage"};
    found[4].dataRoots = {test::dataRoot(test::machine, Scope::me, {"Store"})};
    for (const Inventory& inventory : found) {
        EXPECT_EQ(footer(test::readyWith(inventory)).buttons.size(), 2U);
    }
}

TEST(Footer, WithNothingFoundOnlyQuits) {
    Inventory inventory;
    EXPECT_EQ(footer(test::readyWith(inventory)), (Footer{{}, std::nullopt, {quitAlone}}));
    inventory.appRunning = true;
    EXPECT_EQ(footer(test::readyWith(inventory)), (Footer{{}, std::nullopt, {quitAlone}}));
}

TEST(Footer, ScanningOnlyQuits) {
    EXPECT_EQ(footer(in(Model::Scanning{})), (Footer{{}, std::nullopt, {quitAlone}}));
    EXPECT_EQ(footer({}), (Footer{{}, std::nullopt, {quitAlone}}));
}

TEST(Footer, WorkingAsksForPatienceAndDoesNotQuit) {
    const Footer expected{{},
                          Busy{"Please keep this window open until it's done."},
                          {{"Quit", Action::quit, ButtonKey::defaultAction, false}}};
    EXPECT_EQ(footer(in(Model::Working{})), expected);
}

TEST(Footer, FinishedOnlyQuits) {
    EXPECT_EQ(footer(in(Model::Finished{})), (Footer{{}, std::nullopt, {quitAlone}}));
}

TEST(Footer, FinishedWithFailuresCanBeTriedAgain) {
    const Footer expected{{}, std::nullopt, {{"Try Again", Action::scan}, quitAlone}};
    EXPECT_EQ(footer(in(Model::Finished{{{"/a", "it is still there"}}})), expected);
}

TEST(Footer, HasNoNotesForAnInstallationOfMine) {
    EXPECT_EQ(notes(test::usualInventory(test::machine)), Notes{});
}

TEST(Footer, NotesTheAppThatIsOpen) {
    Inventory inventory = test::usualInventory(test::machine);
    inventory.appRunning = true;
    EXPECT_EQ(notes(inventory), Notes{openApp});
}

TEST(Footer, NotesThePasswordForAllUsers) {
    Inventory inventory;
    inventory.installations = {test::installation(test::machine, Scope::allUsers)};
    EXPECT_EQ(notes(inventory), Notes{forAllUsers});
}

TEST(Footer, NotesThePasswordForFilesOfTheSystem) {
    Inventory inventory = test::usualInventory(test::machine);
    inventory.installations[0].needsAdministrator = true;
    EXPECT_EQ(notes(inventory), Notes{ofTheSystem});
}

TEST(Footer, AnInstallationForAllUsersExplainsMore) {
    Inventory inventory;
    inventory.installations = {test::installation(test::machine, Scope::allUsers),
                               test::installation(test::machine, Scope::me)};
    inventory.installations[1].needsAdministrator = true;
    EXPECT_EQ(notes(inventory), Notes{forAllUsers});
}

TEST(Footer, NotesThePasswordWhileSharedDataIsChosen) {
    Inventory inventory = test::usualInventory(test::machine);
    inventory.dataRoots.push_back(test::dataRoot(test::machine, Scope::allUsers, {"CDN"}));
    EXPECT_EQ(notes(inventory), Notes{});
    EXPECT_EQ(notes(inventory, {test::dataFolder(test::machine, Scope::me, "Store").path}),
              Notes{});
    EXPECT_EQ(notes(inventory, {test::dataFolder(test::machine, Scope::allUsers, "CDN").path}),
              Notes{ofTheSystem});
}

TEST(Footer, NotesThePasswordBeforeTheOpenApp) {
    EXPECT_EQ(footer(in(Model::Ready{})).notes, (Notes{forAllUsers, openApp}));
}

} // namespace
} // namespace kelmar
