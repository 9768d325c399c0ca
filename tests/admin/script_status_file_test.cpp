#include "tests/admin/script_fixture.hpp"

#include <iterator>

namespace kelmar {
namespace {

/// Root writes for a user: into the user's status file, with the user's rights.
class ScriptStatusFile : public test::Script {
protected:
    void SetUp() override {
        if (::getuid() != 0) {
            GTEST_SKIP() << "only root can run the script for another user";
        }
        giveAway(place);
        giveAway(status);
    }

    [[nodiscard]] test::ProgramEnd run() const {
        return runWith({"--status", status, "--shared-data", shared("Store"), "--test-root",
                        tree.paths().systemRoot});
    }

    std::string place = std::filesystem::path(status).parent_path();
    std::string refusal =
        "uninstall-as-admin.sh: the status file is not a plain file of the user\n";
};

TEST_F(ScriptStatusFile, OfTheUserWhoAsksGetsTheLines) {
    EXPECT_EQ(run().status, 0);
    EXPECT_EQ(statusLines(), Lines({"DONE"}));

    struct stat made {};

    ASSERT_EQ(::lstat(status.c_str(), &made), 0);
    EXPECT_EQ(made.st_uid, foreigner);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(place), {}), 1)
        << "nothing else is left beside it";
}

TEST_F(ScriptStatusFile, InRootsFolderIsAsGood) {
    ASSERT_EQ(::lchown(place.c_str(), 0, 0), 0);
    EXPECT_EQ(run().status, 0);
    EXPECT_EQ(statusLines(), Lines({"DONE"}));
}

TEST_F(ScriptStatusFile, InAFolderOfSomebodyElsesIsRefused) {
    ASSERT_EQ(::lchown(place.c_str(), foreigner - 1, 0), 0);
    std::filesystem::permissions(place, std::filesystem::perms(0777));
    const test::ProgramEnd end = run();
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error, refusal);
    EXPECT_EQ(statusLines(), Lines{});
}

TEST_F(ScriptStatusFile, ThatItsUserMayNotWriteIsNotWrittenByRootEither) {
    for (const std::string& path : {status, place}) {
        std::filesystem::permissions(path, std::filesystem::perms(0400));
        const test::ProgramEnd end = run();
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.error, refusal);
        EXPECT_EQ(statusLines(), Lines{});
        std::filesystem::permissions(path, std::filesystem::perms(0700));
    }
}

} // namespace
} // namespace kelmar
