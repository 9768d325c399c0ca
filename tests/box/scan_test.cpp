#include "tests/box/box.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace kelmar {
namespace {

using Lines = std::vector<std::string>;
using test::Box;
using test::ProgramEnd;

class ScanOfAPretendMac : public testing::Test {
protected:
    void SetUp() override {
        if (const auto reason = Box::skipReason()) {
            GTEST_SKIP() << *reason;
        }
        box = std::make_unique<Box>();
    }

    [[nodiscard]] std::string listing() const {
        const ProgramEnd end = box->uninstaller({"--scan"}).run();
        EXPECT_EQ(end.status, 0);
        EXPECT_EQ(end.error, "");
        return end.output;
    }

    std::unique_ptr<Box> box;
};

TEST_F(ScanOfAPretendMac, AsksTheSystemsToolsExactlyTheseQuestions) {
    EXPECT_EQ(listing(), "Kelmar isn't on this Mac.\n");
    EXPECT_EQ(
        box->calls(),
        (Lines{"/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.app>",
               "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.backend>",
               "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.app> <--volume> </Users/ann>",
               "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.backend> <--volume> </Users/ann>",
               "/bin/launchctl <print> <gui/501/com.kelmar.api>",
               "/bin/launchctl <print> <gui/501/com.kelmar.worker>",
               "/usr/bin/security <find-generic-password> <-s> <Kelmar Safe Storage>",
               "/usr/bin/security <find-generic-password> <-s> <Quobrintal Safe Storage>"}));
}

TEST_F(ScanOfAPretendMac, ListsWhatTheSystemKnows) {
    box->tree().app(Scope::allUsers, "4.2.1").agents(Scope::me).settings();
    box->tree().temporaryFiles();
    box->chownToUser("/Users/ann");
    box->addReceipt("com.kelmar.pkg.app", "/");
    box->addReceipt("com.kelmar.pkg.backend", "/");
    box->addReceipt("com.kelmar.pkg.backend", "/Users/ann");
    box->addService("com.kelmar.worker", "/Users/ann/Library/LaunchAgents/com.kelmar.worker.plist");
    box->addKeychainItem("Kelmar Safe Storage");
    box->addKeychainItem("Quobrintal Safe Storage");
    EXPECT_EQ(listing(), "Installed for all users: Kelmar 4.2.1\n"
                         "    /Applications/Kelmar.app\n"
                         "    install records: com.kelmar.pkg.app, com.kelmar.pkg.backend\n"
                         "Installed for this user: Kelmar (app missing)\n"
                         "    ~/Library/LaunchAgents/com.kelmar.api.plist\n"
                         "    ~/Library/LaunchAgents/com.kelmar.worker.plist\n"
                         "    install records: com.kelmar.pkg.backend\n"
                         "Services loaded in this login session: com.kelmar.worker\n"
                         "Settings:\n"
                         "    ~/Library/Application Support/Kelmar\n"
                         "    ~/Library/Application Support/Quobrintal\n"
                         "    ~/Library/Logs/Kelmar\n"
                         "    ~/Library/Preferences/com.quobrintal.app.plist\n"
                         "    ~/Library/Preferences/ByHost/com.quobrintal.app.0A1B2C3D.plist\n"
                         "    ~/Library/Saved Application State/com.quobrintal.app.savedState\n"
                         "    ~/Library/Caches/com.quobrintal.app\n"
                         "    ~/Library/HTTPStorages/com.quobrintal.app\n"
                         "    ~/Library/WebKit/com.quobrintal.app\n"
                         "    /box/tmp/Kelmar\n"
                         "    /box/tmp/Kelmar_temp\n"
                         "    /box/tmp/sd-soffice-diagram\n"
                         "Keychain items: Kelmar Safe Storage, Quobrintal Safe Storage\n");
}

TEST_F(ScanOfAPretendMac, AReceiptAloneIsAnInstallation) {
    box->addReceipt("com.kelmar.pkg.app", "/Users/ann");
    EXPECT_EQ(listing(), "Installed for this user: Kelmar (app missing)\n"
                         "    install records: com.kelmar.pkg.app\n");
}

TEST_F(ScanOfAPretendMac, BothServicesAreListedTheApiFirst) {
    box->addService("com.kelmar.worker", "/x");
    box->addService("com.kelmar.api", "/y");
    EXPECT_EQ(listing(),
              "Services loaded in this login session: com.kelmar.api, com.kelmar.worker\n");
}

TEST_F(ScanOfAPretendMac, FilesThatBelongToTheSystemAreSaidToNeedAnAdministrator) {
    box->tree().services(Scope::me);
    EXPECT_EQ(listing(),
              "Installed for this user: Kelmar (app missing)\n"
              "    ~/Library/Kelmar\n"
              "    (some files belong to another user: removing them needs an administrator)\n");
    box->chownToUser("/Users/ann/Library/Kelmar");
    EXPECT_EQ(listing(), "Installed for this user: Kelmar (app missing)\n"
                         "    ~/Library/Kelmar\n");
}

TEST_F(ScanOfAPretendMac, ARunningAppIsNotedBesideWhatThereIsToRemove) {
    const std::string executable = "/Users/ann/Applications/Kelmar.app/Contents/MacOS/Kelmar";
    test::Sleeper& app = box->start(executable);
    box->chownToUser("/Users/ann/Applications");
    const std::string seen = listing();
    ::kill(app.process(), SIGKILL);
    while (!app.hasEnded()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    EXPECT_EQ(seen, "Installed for this user: Kelmar (app missing)\n"
                    "    ~/Applications/Kelmar.app\n"
                    "Kelmar is running.\n");
    EXPECT_EQ(listing(), "Installed for this user: Kelmar (app missing)\n"
                         "    ~/Applications/Kelmar.app\n");
}

TEST_F(ScanOfAPretendMac, ASlowFolderDoesNotHoldBackTheLinesBeforeIt) {
    box->tree().dataFolder(Scope::me, "Database").dataFolder(Scope::me, "Store");
    // It ends once the line before its own has arrived, or never.
    box->replace("/usr/bin/du", "case $2 in */Store)\n"
                                "    while [ ! -e /box/seen ]; do sleep 0.02; done ;;\n"
                                "esac\nprintf '12\\t%s\\n' \"$2\"\n");
    test::Program program = box->uninstaller({"--scan"});
    std::string early;
    program.onOutput = [&](const std::string& piece, std::chrono::milliseconds /*at*/) {
        early += piece;
        if (early == "Data in ~/Kelmar:\n"
                     "    Database     12 KB\n") {
            box->set("/box/seen");
        }
    };
    const ProgramEnd end = program.run();
    EXPECT_FALSE(end.timedOut);
    EXPECT_EQ(end.output, "Data in ~/Kelmar:\n"
                          "    Database     12 KB\n"
                          "    Store        12 KB\n");
}

TEST_F(ScanOfAPretendMac, ToolsThatFailReadAsNotThere) {
    box->addReceipt("com.kelmar.pkg.app", "/");
    box->addService("com.kelmar.api", "/x");
    box->addKeychainItem("Kelmar Safe Storage");
    box->replace("/usr/sbin/pkgutil", "exit 70\n");
    box->replace("/bin/launchctl", "kill -SEGV $$\n");
    std::filesystem::remove(box->outside("/usr/bin/security"));
    EXPECT_EQ(listing(), "Kelmar isn't on this Mac.\n");
}

TEST_F(ScanOfAPretendMac, ASizeThatNoDiskHasEndsTheProgramWithOneLine) {
    box->tree().dataFolder(Scope::me, "Store");
    box->replace("/usr/bin/du", "printf '9007199254740992\\t/x\\n'\n"); // 2 to the 53rd
    const ProgramEnd end = box->uninstaller({"--scan"}).run();
    EXPECT_EQ(end.error,
              "Kelmar Uninstaller: broken contract: du reported a size that no disk has\n");
    EXPECT_EQ(end.status, -SIGABRT);
    box->replace("/usr/bin/du", "printf '9007199254740991\\t/x\\n'\n");
    EXPECT_EQ(listing(), "Data in ~/Kelmar:\n"
                         "    Store        9.22 EB\n");
}

} // namespace
} // namespace kelmar
