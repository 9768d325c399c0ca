#include "tests/box/uninstall_fixture.hpp"
#include "tests/support/rm_words.hpp"

namespace kelmar {
namespace {

using test::linesOf;
using test::ProgramEnd;
using test::rmRefusal;

class Leftovers : public test::UninstallOnAPretendMac {
protected:
    /// The lines after "Not removed:".
    [[nodiscard]] static Lines notRemoved(const ProgramEnd& end) {
        Lines lines = linesOf(end.output);
        const auto heading = std::find(lines.begin(), lines.end(), "Not removed:");
        EXPECT_EQ(end.status, heading == lines.end() ? 0 : 1) << end.output;
        return {heading == lines.end() ? heading : heading + 1, lines.end()};
    }
};

TEST_F(Leftovers, OneOfEachKindIsNamedWithItsReason) {
    installEverything();
    box->mountOver("/Users/ann/Applications/Kelmar.app/Contents/MacOS");
    box->mountOver("/Library/Kelmar/lib");
    box->tree().file(box->outside("/Users/ann/Library/Caches/com.quobrintal.app/of the system/x"));
    box->set("/box/receipts/:/com.kelmar.pkg.app", "The package is in use.\n");
    box->set("/box/receipts/:Users:ann/com.kelmar.pkg.app", "\n The package is in use.\n\n");
    box->set("/box/bootout/com.kelmar.worker", "5");
    box->set("/box/keychain/Kelmar Safe Storage", "stuck\n");
    EXPECT_EQ(notRemoved(uninstall("--delete-data")),
              (Lines{"    /Library/Kelmar: a disk is mounted inside it",
                     "    ~/Applications/Kelmar.app: a disk is mounted inside it",
                     "    ~/Applications/Kelmar.app: " +
                         rmRefusal("/Users/ann/Applications/Kelmar.app/Contents/MacOS",
                                   "Device or resource busy"),
                     "    Install record com.kelmar.pkg.app: The package is in use.",
                     "    ~/Library/Caches/com.quobrintal.app: " +
                         rmRefusal("/Users/ann/Library/Caches/com.quobrintal.app/of the system/x",
                                   "Permission denied"),
                     "    Install record com.kelmar.pkg.app: pkgutil still lists it",
                     "    Install record com.kelmar.pkg.app: pkgutil still lists it",
                     "    com.kelmar.worker: the service is still loaded",
                     "    Keychain item Kelmar Safe Storage: it is still in the keychain"}));
}

TEST_F(Leftovers, ASecondRunRemovesWhatTheFirstCouldNot) {
    installEverything();
    box->set("/box/bootout/com.kelmar.worker", "5");
    EXPECT_EQ(notRemoved(uninstall("--delete-data")),
              Lines{"    com.kelmar.worker: the service is still loaded"});
    std::filesystem::remove(box->outside("/box/bootout/com.kelmar.worker"));
    EXPECT_EQ(notRemoved(uninstall("--delete-data")), Lines{});
    EXPECT_EQ(uninstall("--delete-data").output, "Kelmar isn't on this Mac; nothing to remove.\n");
}

struct Bootout {
    std::string answer;
    std::string line;
    bool stopped;
};

class BootoutAnswers : public Leftovers, public testing::WithParamInterface<Bootout> {};

TEST_P(BootoutAnswers, AreTakenAsLaunchctlMeansThem) {
    installForMe();
    box->addService("com.kelmar.api", "/Users/ann/Library/LaunchAgents/com.kelmar.api.plist");
    box->set("/box/bootout/com.kelmar.api", GetParam().answer);
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(linesOf(end.output).at(1), GetParam().line);
    EXPECT_EQ(notRemoved(end), GetParam().stopped
                                   ? Lines{}
                                   : Lines{"    com.kelmar.api: the service is still loaded"});
}

INSTANTIATE_TEST_SUITE_P(
    OfLaunchctl, BootoutAnswers,
    testing::Values(
        Bootout{"0", "    Stopped com.kelmar.api.", true},
        Bootout{"3", "    Stopped com.kelmar.api.", true},
        Bootout{"113", "    Stopped com.kelmar.api.", true},
        Bootout{
            "5",
            "    Could not stop com.kelmar.api: Boot-out failed: 5: Input/output error (exit 5)",
            false}));

TEST_F(Leftovers, AServiceThatVanishesIsStillRememberedForTheNextStart) {
    installEverything();
    box->set("/box/bootout/com.kelmar.api", "113");
    box->answerPasswordWith("exit 1\n");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 3);
    EXPECT_NE(end.output.find("    Started com.kelmar.api again.\n"), std::string::npos)
        << end.output;
}

TEST_F(Leftovers, AServiceOfUnknownOriginIsStoppedAndNotStartedAgain) {
    installEverything();
    box->set("/box/services/gui:501:com.kelmar.api");
    std::filesystem::resize_file(box->outside("/box/services/gui:501:com.kelmar.api"), 0);
    box->answerPasswordWith("exit 1\n");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_NE(end.output.find("    Stopped com.kelmar.api.\n"), std::string::npos) << end.output;
    EXPECT_EQ(end.output.find("Started com.kelmar.api"), std::string::npos) << end.output;
    EXPECT_NE(end.output.find("    Started com.kelmar.worker again.\n"), std::string::npos)
        << end.output;
}

TEST_F(Leftovers, FiveKeychainItemsOfOneNameAllGo) {
    for (int item = 0; item < 5; ++item) {
        box->addKeychainItem("Quobrintal Safe Storage");
    }
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(linesOf(end.output),
              (Lines{"==> Removing Kelmar's settings and permissions from your account",
                     "    Removed the keychain item Quobrintal Safe Storage.",
                     "Kelmar has been removed."}));
    EXPECT_EQ(
        commands(),
        Lines(5, "/usr/bin/security <delete-generic-password> <-s> <Quobrintal Safe Storage>"));
}

TEST_F(Leftovers, AKeychainItemThatNeverGoesIsTriedFiveTimesAndNamed) {
    box->addKeychainItem("Kelmar Safe Storage", "stuck");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(notRemoved(end),
              Lines{"    Keychain item Kelmar Safe Storage: it is still in the keychain"});
    EXPECT_EQ(commands(),
              Lines(5, "/usr/bin/security <delete-generic-password> <-s> <Kelmar Safe Storage>"));
}

TEST_F(Leftovers, AReceiptThatIsNotForgottenIsListedTwice) {
    box->addReceipt("com.kelmar.pkg.backend", "/Users/ann", "  It is locked.\n");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(linesOf(end.output),
              (Lines{"==> Closing Kelmar and its background services",
                     "==> Removing Kelmar, its settings and permissions from your account",
                     "Not removed:", "    Install record com.kelmar.pkg.backend: It is locked.",
                     "    Install record com.kelmar.pkg.backend: pkgutil still lists it"}));
}

TEST_F(Leftovers, PermissionsThatAreNotResetAreSaidAndNoFailure) {
    installForMe();
    box->set("/box/no-reset");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(linesOf(end.output).at(1),
              "    Could not reset Kelmar's privacy permissions: tccutil: Failed to "
              "reset All approval status for com.quobrintal.app");
}

/// Acts as the system's preferences cache: writes the file again as long as it knows the domain.
/// The lock keeps it from forgetting the domain between check and write.
const std::string preferencesCache =
    "file=/Users/ann/Library/Preferences/com.quobrintal.app.plist\n"
    "exec 9>/box/preferences-lock\n"
    "while flock 9 && [ -e /box/cached-preferences ]; do\n"
    "    [ -e \"$file\" ] || echo cached >\"$file\"\n"
    "    flock -u 9; sleep 0.005\n"
    "done";

TEST_F(Leftovers, CachedPreferencesAreDroppedBeforeTheirFileGoes) {
    box->tree().settings();
    box->chownToUser("/Users/ann");
    box->set("/box/cached-preferences");
    box->runInBackground(preferencesCache);
    EXPECT_EQ(notRemoved(uninstall("--keep-data")), Lines{});
    EXPECT_EQ(commands(), Lines{"/usr/bin/defaults <delete> <com.quobrintal.app>"});
}

TEST_F(Leftovers, PreferencesThatComeBackAreNamed) {
    box->tree().settings();
    box->chownToUser("/Users/ann");
    box->set("/box/cached-preferences");
    box->set("/box/stubborn-cache");
    box->runInBackground(preferencesCache);
    EXPECT_EQ(notRemoved(uninstall("--keep-data")),
              Lines{"    ~/Library/Preferences/com.quobrintal.app.plist: it is still there"});
}

TEST_F(Leftovers, WithoutThatFileTheCacheIsNotAsked) {
    box->tree().file(box->outside("/Users/ann/Library/Caches/com.quobrintal.app/x"));
    box->chownToUser("/Users/ann");
    EXPECT_EQ(notRemoved(uninstall("--keep-data")), Lines{});
    EXPECT_EQ(commands(), Lines{});
}

} // namespace
} // namespace kelmar
