#include "tests/box/uninstall_fixture.hpp"
#include "tests/support/snapshot.hpp"

namespace kelmar {
namespace {

using test::linesOf;
using test::ProgramEnd;
using test::UninstallOnAPretendMac;

TEST_F(UninstallOnAPretendMac, RemovesEverythingAndSaysSo) {
    installEverything();
    const ProgramEnd end = uninstall("--delete-data");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(linesOf(end.output),
              (Lines{"==> Closing Kelmar and its background services",
                     "    Stopped com.kelmar.api.",
                     "    Stopped com.kelmar.worker.",
                     "    Reset Kelmar's privacy permissions.",
                     "==> Removing Kelmar for all users of this Mac",
                     "    Removed /Applications/Kelmar.app",
                     "    Removed /Library/Kelmar",
                     "    Removed /Library/LaunchAgents/com.kelmar.api.plist",
                     "    Removed /Library/LaunchAgents/com.kelmar.worker.plist",
                     "    Removed the install record com.kelmar.pkg.app.",
                     "    Removed the install record com.kelmar.pkg.backend.",
                     "    Removed /Users/Shared/@Kelmar/CDN",
                     "    Removed /Users/Shared/@Kelmar/CDN_remote",
                     "    Removed /Users/Shared/@Kelmar/Models",
                     "    Removed /Users/Shared/@Kelmar/Staging",
                     "==> Removing Kelmar, its settings and permissions from your account",
                     "    Removed ~/Applications/Kelmar.app",
                     "    Removed ~/Library/Kelmar",
                     "    Removed ~/Library/LaunchAgents/com.kelmar.api.plist",
                     "    Removed ~/Library/LaunchAgents/com.kelmar.worker.plist",
                     "    Removed the install record com.kelmar.pkg.app.",
                     "    Removed the install record com.kelmar.pkg.backend.",
                     "    Removed ~/Library/Application Support/Kelmar",
                     "    Removed ~/Library/Application Support/Quobrintal",
                     "    Removed ~/Library/Logs/Kelmar",
                     "    Removed ~/Library/Preferences/com.quobrintal.app.plist",
                     "    Removed ~/Library/Preferences/ByHost/com.quobrintal.app.0A1B2C3D.plist",
                     "    Removed ~/Library/Saved Application State/com.quobrintal.app.savedState",
                     "    Removed ~/Library/Caches/com.quobrintal.app",
                     "    Removed ~/Library/HTTPStorages/com.quobrintal.app",
                     "    Removed ~/Library/WebKit/com.quobrintal.app",
                     "    Removed /box/tmp/Kelmar",
                     "    Removed /box/tmp/Kelmar_temp",
                     "    Removed /box/tmp/sd-soffice-diagram",
                     "    Removed the keychain item Kelmar Safe Storage.",
                     "==> Deleting your Kelmar data",
                     "    Removed ~/Kelmar/Database",
                     "    Removed ~/Kelmar/Store",
                     "    Removed ~/Kelmar/Export",
                     "    Removed ~/Kelmar/Logs",
                     "    ~/Kelmar: it still holds notes.txt.",
                     "Kelmar has been removed."}));
    EXPECT_EQ(leftOnTheDisk(), Lines{"/Users/ann/Kelmar/notes.txt"});
    EXPECT_TRUE(std::filesystem::is_empty(box->outside("/box/tmp"))) << "the status folder is gone";
    EXPECT_EQ(box->uninstaller({"--scan"}).run().output, "Kelmar isn't on this Mac.\n");
}

TEST_F(UninstallOnAPretendMac, AsksTheSystemsToolsExactlyThisInThisOrder) {
    installEverything();
    EXPECT_EQ(uninstall("--delete-data").status, 0);
    const Lines calls = box->calls();
    const Lines scan{
        "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.app>",
        "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.backend>",
        "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.app> <--volume> </Users/ann>",
        "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.backend> <--volume> </Users/ann>",
        "/bin/launchctl <print> <gui/501/com.kelmar.api>",
        "/bin/launchctl <print> <gui/501/com.kelmar.worker>",
        "/usr/bin/security <find-generic-password> <-s> <Kelmar Safe Storage>",
        "/usr/bin/security <find-generic-password> <-s> <Quobrintal Safe Storage>"};
    Lines expected = scan;
    const auto add = [&expected](const Lines& more) {
        expected.insert(expected.end(), more.begin(), more.end());
    };
    add({"/bin/launchctl <print> <gui/501/com.kelmar.api>",
         "/bin/launchctl <bootout> <gui/501/com.kelmar.api>",
         "/bin/launchctl <print> <gui/501/com.kelmar.worker>",
         "/bin/launchctl <bootout> <gui/501/com.kelmar.worker>",
         "/usr/bin/tccutil <reset> <All> <com.quobrintal.app>"});
    // The script calls launchctl for the domain of everybody who is logged in.
    ASSERT_GT(calls.size(), expected.size());
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), calls.begin()));
    Lines rest(calls.begin() + static_cast<std::ptrdiff_t>(expected.size()), calls.end());
    const auto isScriptsQuestion = [](const std::string& line) {
        return line.starts_with("/bin/launchctl <print> <gui/");
    };
    const auto scriptEnd = std::find_if_not(rest.begin(), rest.end(), isScriptsQuestion);
    EXPECT_EQ(
        std::count(rest.begin(), scriptEnd, "/bin/launchctl <print> <gui/501/com.kelmar.api>"), 1);
    EXPECT_EQ(
        std::count(rest.begin(), scriptEnd, "/bin/launchctl <print> <gui/501/com.kelmar.worker>"),
        1);
    rest.erase(rest.begin(), scriptEnd);
    expected = {"/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.app>",
                "/usr/sbin/pkgutil <--forget> <com.kelmar.pkg.app>",
                "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.backend>",
                "/usr/sbin/pkgutil <--forget> <com.kelmar.pkg.backend>",
                "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.app> <--volume> </Users/ann>",
                "/usr/sbin/pkgutil <--forget> <com.kelmar.pkg.app> <--volume> </Users/ann>",
                "/usr/sbin/pkgutil <--pkg-info> <com.kelmar.pkg.backend> <--volume> </Users/ann>",
                "/usr/sbin/pkgutil <--forget> <com.kelmar.pkg.backend> <--volume> </Users/ann>",
                "/usr/bin/defaults <delete> <com.quobrintal.app>",
                "/usr/bin/security <delete-generic-password> <-s> <Kelmar Safe Storage>",
                "/usr/bin/security <delete-generic-password> <-s> <Kelmar Safe Storage>"};
    add(scan);
    EXPECT_EQ(rest, expected);
}

TEST_F(UninstallOnAPretendMac, KeepsEveryByteOfTheDataWhenToldTo) {
    installEverything();
    const auto mine = test::snapshot(box->outside("/Users/ann/Kelmar"));
    const auto shared = test::snapshot(box->outside("/Users/Shared"));
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(linesOf(end.output).back(), "Kelmar has been removed.");
    EXPECT_EQ(end.output.find("Deleting"), std::string::npos);
    EXPECT_EQ(test::snapshot(box->outside("/Users/ann/Kelmar")), mine);
    EXPECT_EQ(test::snapshot(box->outside("/Users/Shared")), shared);
    EXPECT_EQ(leftOnTheDisk(), (Lines{"/Users/ann/Kelmar/Database", "/Users/ann/Kelmar/Store",
                                      "/Users/ann/Kelmar/notes.txt", "/Users/Shared/@Kelmar/CDN",
                                      "/Users/Shared/@Kelmar/Staging"}));
}

TEST_F(UninstallOnAPretendMac, FilesOfTheSystemInTheHomeFolderGoToo) {
    installForMe();
    box->tree().file(box->outside("/Users/ann/Library/Kelmar/lib/of the system/x"));
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(linesOf(end.output),
              (Lines{"==> Closing Kelmar and its background services",
                     "    Reset Kelmar's privacy permissions.",
                     "==> Removing files only an administrator can delete",
                     "    Removed ~/Library/Kelmar/lib/of the system",
                     "==> Removing Kelmar, its settings and permissions from your account",
                     "    Removed ~/Applications/Kelmar.app", "    Removed ~/Library/Kelmar",
                     "    Removed ~/Library/LaunchAgents/com.kelmar.api.plist",
                     "    Removed ~/Library/LaunchAgents/com.kelmar.worker.plist",
                     "Kelmar has been removed."}));
    EXPECT_EQ(leftOnTheDisk(), Lines{});
}

TEST_F(UninstallOnAPretendMac, WithNothingThereAsksForNoPassword) {
    box->answerPasswordWith("touch /box/asked-for-password\n");
    const ProgramEnd end = uninstall("--delete-data");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "Kelmar isn't on this Mac; nothing to remove.\n");
    EXPECT_FALSE(isThere("/box/asked-for-password"));
}

TEST_F(UninstallOnAPretendMac, UnderATestRootNothingIsAskedOfTheSystemAndNoPassword) {
    installEverything();
    const auto before = test::contents(box->outside("/Users/ann"));
    box->answerPasswordWith("touch /box/asked-for-password\n");
    test::MacTree(box->outside("/box/test")).everything();
    box->chownToUser("/box/test");
    test::Program program = box->uninstaller({"--uninstall", "--delete-data"});
    program.environment["KELMAR_UNINSTALLER_TEST_ROOT"] = "/box/test";
    const ProgramEnd end = program.run();
    EXPECT_EQ(end.status, 0) << end.output;
    EXPECT_EQ(box->calls(), Lines{});
    EXPECT_FALSE(isThere("/box/asked-for-password"));
    EXPECT_FALSE(isThere("/box/test/system/Applications/Kelmar.app"));
    EXPECT_TRUE(isThere("/Applications/Kelmar.app"));
    EXPECT_EQ(test::contents(box->outside("/Users/ann")), before);
}

TEST_F(UninstallOnAPretendMac, ARefusedPromptStartsTheServicesAgain) {
    installEverything();
    box->answerPasswordWith("exit 1\n");
    const auto before = test::contents(box->outside("/Users"));
    const ProgramEnd end = uninstall("--delete-data");
    EXPECT_EQ(end.status, 3);
    EXPECT_EQ(
        linesOf(end.output),
        (Lines{"==> Closing Kelmar and its background services", "    Stopped com.kelmar.api.",
               "    Stopped com.kelmar.worker.", "    Reset Kelmar's privacy permissions.",
               "==> Removing Kelmar for all users of this Mac",
               "    No administrator's password was given; nothing was removed.",
               "    Started com.kelmar.api again.", "    Started com.kelmar.worker again.",
               "Cancelled at the administrator password prompt; nothing was removed."}));
    EXPECT_EQ(
        commands(),
        (Lines{"/bin/launchctl <bootout> <gui/501/com.kelmar.api>",
               "/bin/launchctl <bootout> <gui/501/com.kelmar.worker>",
               "/usr/bin/tccutil <reset> <All> <com.quobrintal.app>",
               "/bin/launchctl <bootstrap> <gui/501> </Library/LaunchAgents/com.kelmar.api.plist>",
               "/bin/launchctl <bootstrap> <gui/501> "
               "</Users/ann/Library/LaunchAgents/com.kelmar.worker.plist>"}));
    EXPECT_EQ(test::contents(box->outside("/Users")), before);
    EXPECT_TRUE(std::filesystem::is_empty(box->outside("/box/tmp")) || isThere("/box/tmp/Kelmar"));
    EXPECT_NE(box->uninstaller({"--scan"}).run().output.find("com.kelmar.api, com.kelmar.worker"),
              std::string::npos)
        << "they run again";
}

TEST_F(UninstallOnAPretendMac, AServiceThatDoesNotStartAgainIsSaid) {
    installEverything();
    box->answerPasswordWith("exit 1\n");
    box->set("/box/no-bootstrap");
    const ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.status, 3);
    EXPECT_NE(
        end.output.find(
            "    Could not start com.kelmar.api again: Bootstrap failed: 5: Input/output error\n"),
        std::string::npos)
        << end.output;
}

} // namespace
} // namespace kelmar
