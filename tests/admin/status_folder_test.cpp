#include "admin/status_folder.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <regex>
#include <string>

#include <sys/stat.h>

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

} // namespace
} // namespace kelmar
