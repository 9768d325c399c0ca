#include "discovery/scanner.hpp"
#include "discovery/size_in_words.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <unistd.h>

namespace kelmar {
namespace {

class ScanListing : public testing::Test {
protected:
    [[nodiscard]] std::string listing() const {
        const test::ProgramEnd end = test::uninstaller({"--scan"}, folder / "t").run();
        EXPECT_EQ(end.status, 0);
        EXPECT_EQ(end.error, "");
        return end.output;
    }

    /// The line of a data folder that has no size to speak of.
    [[nodiscard]] std::string line(const std::string& column, Scope scope,
                                   const std::string& name) const {
        const std::string path = tree.paths().dataRoot(scope) + "/" + name;
        return "    " + column + " " + sizeInWords(Scanner::size(path), "?") + "\n";
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_F(ScanListing, OfAnEmptyMachineIsOneLine) {
    EXPECT_EQ(listing(), "Kelmar isn't on this Mac.\n");
}

TEST_F(ScanListing, OfEverythingNamesEverythingInItsOrder) {
    tree.everything();
    EXPECT_EQ(listing(), "Installed for all users: Kelmar 4.2.1\n"
                         "    /Applications/Kelmar.app\n"
                         "    /Library/Kelmar\n"
                         "    /Library/LaunchAgents/com.kelmar.api.plist\n"
                         "    /Library/LaunchAgents/com.kelmar.worker.plist\n"
                         "Installed for this user: Kelmar 4.3\n"
                         "    ~/Applications/Kelmar.app\n"
                         "    ~/Library/Kelmar\n"
                         "    ~/Library/LaunchAgents/com.kelmar.api.plist\n"
                         "    ~/Library/LaunchAgents/com.kelmar.worker.plist\n"
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
                         "    " +
                             folder.path() +
                             "/t/tmp/Kelmar\n"
                             "    " +
                             folder.path() +
                             "/t/tmp/Kelmar_temp\n"
                             "    " +
                             folder.path() +
                             "/t/tmp/sd-soffice-diagram\n"
                             "Data in ~/Kelmar:\n" +
                             line("Database    ", Scope::me, "Database") +
                             line("Store       ", Scope::me, "Store") +
                             line("Export      ", Scope::me, "Export") +
                             line("Logs        ", Scope::me, "Logs") +
                             "    also holds (always kept): notes.txt\n"
                             "Data in /Users/Shared/@Kelmar:\n" +
                             line("CDN         ", Scope::allUsers, "CDN") +
                             line("CDN_remote  ", Scope::allUsers, "CDN_remote") +
                             line("Models      ", Scope::allUsers, "Models") +
                             line("Staging     ", Scope::allUsers, "Staging"));
}

TEST_F(ScanListing, AnAppThatIsGoneIsSaidToBeMissing) {
    tree.agents(Scope::me);
    EXPECT_EQ(listing(), "Installed for this user: Kelmar (app missing)\n"
                         "    ~/Library/LaunchAgents/com.kelmar.api.plist\n"
                         "    ~/Library/LaunchAgents/com.kelmar.worker.plist\n");
}

TEST_F(ScanListing, AnAppWhoseVersionCannotBeReadIsSaidToBeMissingToo) {
    tree.appWithoutVersion(Scope::allUsers);
    EXPECT_EQ(listing(), "Installed for all users: Kelmar (app missing)\n"
                         "    /Applications/Kelmar.app\n");
}

TEST_F(ScanListing, WhatTakesNoSpaceIsEmpty) {
    tree.folder(tree.paths().dataRoot(Scope::me))
        .link(tree.paths().dataRoot(Scope::me) + "/Store", "nowhere");
    EXPECT_EQ(listing(), "Data in ~/Kelmar:\n"
                         "    Store        Empty\n");
}

TEST_F(ScanListing, OtherItemsAreJoinedInOneLine) {
    tree.dataFolder(Scope::me, "Logs").otherItem(Scope::me, "b").otherItem(Scope::me, "A");
    tree.otherItem(Scope::me, ".DS_Store");
    EXPECT_EQ(listing(), "Data in ~/Kelmar:\n" + line("Logs        ", Scope::me, "Logs") +
                             "    also holds (always kept): A, b\n");
}

TEST_F(ScanListing, FilesOfAnotherUserAreSaidToNeedAnAdministrator) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can give a file to another user";
    }
    tree.services(Scope::me);
    ASSERT_EQ(::chown((tree.paths().services(Scope::me) + "/bin/kelmar-api").c_str(), 12345, 12345),
              0);
    EXPECT_EQ(listing(),
              "Installed for this user: Kelmar (app missing)\n"
              "    ~/Library/Kelmar\n"
              "    (some files belong to another user: removing them needs an administrator)\n");
}

TEST_F(ScanListing, WhatCannotBeMeasuredHasAQuestionMark) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "the folder is closed to an ordinary user, whom only root can become";
    }
    tree.dataFolder(Scope::me, "Store", 5000);
    std::filesystem::permissions(tree.paths().dataRoot(Scope::me) + "/Store",
                                 std::filesystem::perms::none);
    test::Program program = test::uninstaller({"--scan"}, folder / "t");
    program.runAs(65534, folder / "program");
    EXPECT_EQ(program.run().output, "Data in ~/Kelmar:\n"
                                    "    Store        ?\n");
}

} // namespace
} // namespace kelmar
