#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {
namespace {

using test::ProgramEnd;
const std::string nothing = "Kelmar isn't on this Mac.\n";

class BadInput : public testing::Test {
protected:
    /// Scans under `root`; the whole folder is afterwards what it was, to the byte and to the
    /// second.
    [[nodiscard]] ProgramEnd scan(const std::string& root) const {
        const auto before = test::snapshot(folder.path());
        ProgramEnd end = test::uninstaller({"--scan"}, root).run();
        EXPECT_EQ(test::snapshot(folder.path()), before) << "a scan changed something";
        EXPECT_EQ(end.status, 0);
        EXPECT_EQ(end.error, "");
        return end;
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_F(BadInput, ARootThatDoesNotExistHoldsNothing) {
    EXPECT_EQ(scan(folder / "missing").output, nothing);
    EXPECT_FALSE(std::filesystem::exists(folder / "missing")) << "and is not created";
}

TEST_F(BadInput, ARootThatIsAFileHoldsNothing) {
    tree.file(folder / "file", "text");
    EXPECT_EQ(scan(folder / "file").output, nothing);
}

TEST_F(BadInput, ARootThatCannotBeReadHoldsNothing) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "the folder is closed to an ordinary user, whom only root can become";
    }
    tree.everything();
    std::filesystem::permissions(folder / "t", std::filesystem::perms::none);
    test::Program program = test::uninstaller({"--scan"}, folder / "t");
    program.runAs(65534, folder / "program");
    const ProgramEnd end = program.run();
    EXPECT_EQ(end.output, nothing);
    EXPECT_EQ(end.status, 0);
}

TEST_F(BadInput, ARootLongerThanAnyPathHoldsNothing) {
    EXPECT_EQ(scan("/" + std::string(100'000, 'x')).output, nothing);
    std::string steps;
    for (int index = 0; index < 5000; ++index) {
        steps += "/./x/..";
    }
    tree.dataFolder(Scope::me, "Store");
    EXPECT_NE(scan(folder.path() + steps + "/t").output, nothing)
        << "standardised before it is used";
}

TEST_F(BadInput, LinksToThemselvesAreFoundWhereLinksCount) {
    tree.link(tree.paths().app(Scope::me), "Kelmar.app");
    tree.link(tree.paths().services(Scope::allUsers), ".");
    tree.link(tree.paths().dataRoot(Scope::me), "Kelmar");
    tree.link(tree.paths().home + "/Library/Caches", "Caches");
    tree.link(tree.paths().dataRoot(Scope::allUsers) + "/Store", "..");
    EXPECT_EQ(scan(folder / "t").output, "Installed for all users: Kelmar (app missing)\n"
                                         "    /Library/Kelmar\n"
                                         "Installed for this user: Kelmar (app missing)\n"
                                         "    ~/Applications/Kelmar.app\n"
                                         "Data in /Users/Shared/@Kelmar:\n"
                                         "    Store        Empty\n");
}

TEST_F(BadInput, OddNamesComeOutAsTheyAre) {
    tree.link(tree.paths().dataRoot(Scope::me) + "/Logs", "x");
    for (const char* const name :
         {"two\nlines", "\"quoted'", "\xF0\x9F\x98\x80", "\xFF\xFE", " "}) {
        tree.otherItem(Scope::me, name);
    }
    tree.file(tree.paths().home + "/Library/Caches/com.quobrintal.app\n\xFF'");
    EXPECT_EQ(
        scan(folder / "t").output,
        "Settings:\n"
        "    ~/Library/Caches/com.quobrintal.app\n\xFF'\n"
        "Data in ~/Kelmar:\n"
        "    Logs         Empty\n"
        "    also holds (always kept):  , \"quoted', two\nlines, \xF0\x9F\x98\x80, \xFF\xFE\n");
}

TEST_F(BadInput, ARootOfOddNameIsARootLikeAnyOther) {
    const std::string odd = folder / "a b\n\"'\xF0\x9F\x98\x80\xFF";
    test::MacTree(odd).agents(Scope::allUsers);
    EXPECT_EQ(scan(odd).output, "Installed for all users: Kelmar (app missing)\n"
                                "    /Library/LaunchAgents/com.kelmar.api.plist\n"
                                "    /Library/LaunchAgents/com.kelmar.worker.plist\n");
}

TEST_F(BadInput, EverySpellingOfARootIsTheSameRoot) {
    tree.everything();
    const std::string expected = scan(folder / "t").output;
    for (const std::string& spelling :
         {folder / "t/", "/" + folder.path() + "//t", folder / "x/../t", folder / "./t/."}) {
        EXPECT_EQ(scan(spelling).output, expected) << spelling;
    }
}

TEST_F(BadInput, APipeInTheVersionRecordsPlaceDoesNotHoldTheScanUp) {
    tree.appWithoutVersion(Scope::me);
    ASSERT_EQ(::mkfifo((tree.paths().app(Scope::me) + "/Contents/Info.plist").c_str(), 0600), 0);
    EXPECT_EQ(scan(folder / "t").output, "Installed for this user: Kelmar (app missing)\n"
                                         "    ~/Applications/Kelmar.app\n");
}

TEST_F(BadInput, AScanOfEverythingOnlyReads) {
    tree.everything();
    EXPECT_NE(scan(folder / "t").output, nothing);
}

} // namespace
} // namespace kelmar
