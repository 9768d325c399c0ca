#include "admin/status_folder.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {
namespace {

namespace fs = std::filesystem;

unsigned modeOf(const std::string& path) {
    struct stat status {};

    EXPECT_EQ(::lstat(path.c_str(), &status), 0);
    return status.st_mode & 07777U;
}

TEST(StatusFolder, IsThisUsersAloneWhateverTheUmask) {
    const test::TemporaryFolder folder;
    for (const mode_t mask : {0000U, 0022U, 0077U, 0277U}) {
        const mode_t before = ::umask(mask);
        const StatusFolder status(folder.path());
        ::umask(before);
        EXPECT_FALSE(status.error());
        EXPECT_EQ(modeOf(status.path()), 0700U);
        EXPECT_EQ(modeOf(status.file()), 0600U);
        EXPECT_EQ(fs::file_size(status.file()), 0U);
    }
    EXPECT_TRUE(fs::is_empty(folder.path())) << "all are gone at their ends";
}

TEST(StatusFolder, HasANameThatCannotBeGuessed) {
    const test::TemporaryFolder folder;
    const StatusFolder first(folder.path());
    const StatusFolder second(folder.path());
    EXPECT_NE(first.path(), second.path());
    const std::string name = fs::path(first.path()).filename();
    EXPECT_TRUE(
        std::regex_match(name, std::regex("kelmar-uninstaller-[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-"
                                          "[89AB][0-9A-F]{3}-[0-9A-F]{12}")))
        << name;
}

TEST(StatusFolder, MakesTheFoldersAboveIt) {
    const test::TemporaryFolder folder;
    EXPECT_FALSE(StatusFolder(folder / "a/b").error());
    EXPECT_TRUE(fs::is_empty(folder / "a/b"));
}

TEST(StatusFolder, SaysWhyItCannotBeMade) {
    const test::TemporaryFolder folder;
    std::ofstream(folder / "file") << "x";
    const StatusFolder status(folder / "file");
    EXPECT_EQ(status.error().message(), "Not a directory");
    EXPECT_TRUE(fs::exists(folder / "file"));
}

TEST(StatusFolder, GoesWithWhateverWasPutIntoIt) {
    const test::TemporaryFolder folder;
    {
        const StatusFolder status(folder.path());
        fs::create_directories(status.path() + "/more/below");
        fs::remove(status.file());
    }
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(StatusFolder, GoesAfterAnExceptionToo) {
    const test::TemporaryFolder folder;
    try {
        const StatusFolder status(folder.path());
        throw 1;
    } catch (int) {
        EXPECT_TRUE(fs::is_empty(folder.path()));
    }
}

/// What killed runs, and others, left in a folder for temporary files.
class Sweep : public testing::Test {
protected:
    static constexpr const char* name = "kelmar-uninstaller-0CD66D61-5F6E-4A3A-9A5B-3A0A5A3F6F0E";

    [[nodiscard]] std::string make(const std::string& given = name, int hours = 25) const {
        std::string path = folder / given;
        fs::create_directory(path);
        std::ofstream(path + "/status") << "DOING /Applications/Kelmar.app\n";
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(hours));
        return path;
    }

    [[nodiscard]] bool takes(const std::string& path) const {
        StatusFolder::sweep(folder.path());
        return !fs::exists(fs::symlink_status(path));
    }

    test::TemporaryFolder folder;
};

TEST_F(Sweep, TakesWhatAKilledRunLeft) {
    EXPECT_TRUE(takes(make()));
}

TEST_F(Sweep, LeavesWhatIsYoungerThanADay) {
    EXPECT_FALSE(takes(make(name, 23)));
}

TEST_F(Sweep, LeavesOneThatIsInUseHoweverOld) {
    const StatusFolder used(folder.path());
    fs::last_write_time(used.path(), fs::file_time_type::clock::now() - std::chrono::hours(100));
    EXPECT_FALSE(takes(used.path()));
    EXPECT_TRUE(fs::exists(used.file()));
}

TEST_F(Sweep, LeavesWhatHasAnotherName) {
    EXPECT_FALSE(takes(make("kelmar-uninstaller-")));
    EXPECT_FALSE(takes(make("kelmar-uninstaller-mine")));
    EXPECT_FALSE(takes(make(std::string(name) + "x")));
    EXPECT_FALSE(takes(make("x" + std::string(name))));
}

TEST_F(Sweep, LeavesWhatIsSomebodyElses) {
    const std::string path = make();
    if (::chown(path.c_str(), 65534, 65534) != 0) {
        GTEST_SKIP() << "only root can give a folder to somebody else";
    }
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(25));
    EXPECT_FALSE(takes(path));
}

TEST_F(Sweep, LeavesOneThatHoldsMore) {
    const std::string path = make();
    std::ofstream(path + "/letter") << "mine";
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(25));
    EXPECT_FALSE(takes(path));
    EXPECT_TRUE(fs::exists(path + "/letter"));
}

TEST_F(Sweep, FollowsNoLink) {
    const std::string path = make("elsewhere");
    fs::create_directory_symlink(path, folder / name);
    EXPECT_FALSE(takes(folder / name));
    EXPECT_TRUE(fs::exists(path + "/status"));
}

} // namespace
} // namespace kelmar
