#include "discovery/scanner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace kelmar {
namespace {

class OwnedByMe : public testing::Test {
protected:
    static void needRoot() {
        if (::getuid() != 0) {
            GTEST_SKIP() << "only root can give a file to another user";
        }
    }

    static void giveAway(const std::string& path) {
        ASSERT_EQ(::lchown(path.c_str(), 12345, 12345), 0);
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_F(OwnedByMe, AMissingPathNeedsNobody) {
    EXPECT_TRUE(Scanner::ownedByMe(folder / "missing"));
    EXPECT_TRUE(Scanner::ownedByMe(folder / "missing/below"));
}

TEST_F(OwnedByMe, FilesLinksAndFoldersOfMineAreMine) {
    tree.everything().link(folder / "link", "nowhere");
    EXPECT_TRUE(Scanner::ownedByMe(folder / "link"));
    EXPECT_TRUE(Scanner::ownedByMe(tree.paths().app(Scope::me) + "/Contents/Info.plist"));
    EXPECT_TRUE(Scanner::ownedByMe(folder.path()));
}

TEST_F(OwnedByMe, APathOfAnotherUserIsNot) {
    needRoot();
    if (IsSkipped()) {
        return;
    }
    tree.file(folder / "file").folder(folder / "folder").link(folder / "link", "file");
    for (const char* const name : {"file", "folder", "link"}) {
        EXPECT_TRUE(Scanner::ownedByMe(folder / name)) << name;
        giveAway(folder / name);
        EXPECT_FALSE(Scanner::ownedByMe(folder / name)) << name;
    }
}

TEST_F(OwnedByMe, AForeignFileThreeLevelsDownDecides) {
    needRoot();
    if (IsSkipped()) {
        return;
    }
    tree.file(folder / "top/a/b/file").file(folder / "top/z");
    EXPECT_TRUE(Scanner::ownedByMe(folder / "top"));
    giveAway(folder / "top/a/b/file");
    EXPECT_FALSE(Scanner::ownedByMe(folder / "top"));
}

TEST_F(OwnedByMe, LinksAreNotFollowed) {
    needRoot();
    if (IsSkipped()) {
        return;
    }
    tree.file(folder / "foreign/file").link(folder / "top/link", folder / "foreign");
    tree.link(folder / "top/self", ".").link(folder / "way", "top");
    giveAway(folder / "foreign");
    giveAway(folder / "foreign/file");
    EXPECT_TRUE(Scanner::ownedByMe(folder / "top"));
    EXPECT_TRUE(Scanner::ownedByMe(folder / "way"));
}

TEST_F(OwnedByMe, AFolderThatCannotBeReadCannotBeEstablished) {
    needRoot();
    if (IsSkipped()) {
        return;
    }
    tree.folder(folder / "top/closed/inside");
    const pid_t child = ::fork();
    if (child == 0) {
        // As an ordinary user, for whom permissions count.
        const bool prepared = ::chown((folder / "top").c_str(), 12345, 12345) == 0 &&
                              ::chown((folder / "top/closed").c_str(), 12345, 12345) == 0 &&
                              ::chown((folder / "top/closed/inside").c_str(), 12345, 12345) == 0 &&
                              ::setgid(12345) == 0 && ::setuid(12345) == 0;
        const bool before = Scanner::ownedByMe(folder / "top");
        std::filesystem::permissions(folder / "top/closed", std::filesystem::perms::none);
        const bool after = Scanner::ownedByMe(folder / "top");
        std::filesystem::permissions(folder / "top/closed", std::filesystem::perms(0700));
        ::_exit(prepared && before && !after ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

} // namespace
} // namespace kelmar
