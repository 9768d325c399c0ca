#include "discovery/ownership_walk.hpp"
#include "system/files/file_descriptor.hpp"
#include "tests/support/durations.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {
namespace {

namespace fs = std::filesystem;

/// The question answered the slow and obvious way.
bool plainWalk(uid_t owner, const std::string& path) {
    std::error_code error;
    fs::recursive_directory_iterator entry(path, error);
    if (error) {
        return false;
    }
    for (; entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        struct stat status {};

        if (::lstat(entry->path().c_str(), &status) != 0 || status.st_uid != owner) {
            return false;
        }
        if (error) {
            return false;
        }
    }
    return !error;
}

/// A random tree; the folders and files in it in `all`.
void grow(std::mt19937& random, const fs::path& folder, int depth, std::vector<fs::path>& all) {
    const auto upTo = [&random](int limit) {
        return std::uniform_int_distribution<int>(0, limit)(random);
    };
    const int entries = upTo(6);
    for (int index = 0; index < entries; ++index) {
        const fs::path path = folder / std::to_string(index);
        all.push_back(path);
        if (depth > 0 && upTo(2) != 0) {
            fs::create_directory(path);
            grow(random, path, depth - 1, all);
        } else if (upTo(4) == 0) {
            fs::create_symlink("..", path);
        } else {
            std::ofstream(path) << 'x';
        }
    }
}

TEST(OwnershipWalk, AgreesWithThePlainWalkOnRandomTrees) {
    const bool canGiveAway = ::getuid() == 0;
    int foreignTrees = 0;
    for (unsigned seed = 0; seed < 60; ++seed) {
        const test::TemporaryFolder folder(test::TemporaryFolder::Storage::memory);
        std::mt19937 random(seed);
        std::vector<fs::path> all;
        grow(random, folder.path(), 4, all);
        if (canGiveAway && seed % 2 == 1 && !all.empty()) {
            const fs::path& chosen = all[random() % all.size()];
            ASSERT_EQ(::lchown(chosen.c_str(), 12345, 12345), 0);
            ++foreignTrees;
        }
        const bool plain = plainWalk(::getuid(), folder.path());
        for (const unsigned threads : {1U, 2U, 4U}) {
            EXPECT_EQ(everythingBeneathBelongsTo(::getuid(), folder.path(), threads), plain)
                << "seed " << seed << ", " << threads << " threads, " << all.size() << " entries";
        }
    }
    if (!canGiveAway) {
        GTEST_SKIP()
            << "compared without foreign entries: only root can give a file to another user";
    }
    EXPECT_GT(foreignTrees, 20);
}

TEST(OwnershipWalk, EntriesThatVanishNeverHideAForeignOne) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can give a file to another user";
    }
    const test::TemporaryFolder folder;
    for (int index = 0; index < 40; ++index) {
        fs::create_directories(folder / ("f" + std::to_string(index) + "/inside"));
    }
    std::ofstream(folder / "f20/inside/foreign") << 'x';
    ASSERT_EQ(::lchown((folder / "f20/inside/foreign").c_str(), 12345, 12345), 0);
    std::atomic<bool> enough{false};
    std::thread unrest([&] {
        while (!enough) {
            for (int index = 0; index < 40; ++index) {
                const std::string path = folder / ("f" + std::to_string(index) + "/passing");
                fs::create_directories(path + "/deep");
                std::ofstream(path + "/file") << 'x';
                fs::remove_all(path);
            }
        }
    });
    for (int round = 0; round < 300; ++round) {
        EXPECT_FALSE(everythingBeneathBelongsTo(::getuid(), folder.path(), 2));
    }
    enough = true;
    unrest.join();
    fs::remove_all(folder / "f20");
    EXPECT_TRUE(everythingBeneathBelongsTo(::getuid(), folder.path(), 2));
}

/// Makes a chain of folders below `path`, each with `beside` empty folders next to the next link.
void makeChain(const std::string& path, int levels, int beside) {
    FileDescriptor current(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (int level = 0; level < levels; ++level) {
        for (int index = 0; index < beside; ++index) {
            ASSERT_EQ(::mkdirat(current.get(), ("beside" + std::to_string(index)).c_str(), 0700),
                      0);
        }
        ASSERT_EQ(::mkdirat(current.get(), "level", 0700), 0);
        current =
            FileDescriptor(::openat(current.get(), "level", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        ASSERT_TRUE(current.isOpen());
    }
    const FileDescriptor file(
        ::openat(current.get(), "last", O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    ASSERT_TRUE(file.isOpen());
}

class DeepTree : public testing::TestWithParam<int> {};

TEST_P(DeepTree, OfThreeThousandLevelsNeitherFailsNorRunsOutOfDescriptors) {
    const test::TemporaryFolder folder(test::TemporaryFolder::Storage::memory);
    makeChain(folder.path(), 3000, GetParam());
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit few{256, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    const auto work = test::workOf([&folder] {
        EXPECT_TRUE(everythingBeneathBelongsTo(::getuid(), folder.path(), 1));
        EXPECT_TRUE(everythingBeneathBelongsTo(::getuid(), folder.path(), 2));
    });
    EXPECT_LT(work, std::chrono::seconds(20));
    EXPECT_FALSE(everythingBeneathBelongsTo(::getuid() + 1, folder.path(), 2));
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
}

INSTANTIATE_TEST_SUITE_P(AloneAndWithSiblings, DeepTree, testing::Values(0, 3));

TEST(OwnershipWalk, AnEntryOfAnotherUserAtTheBottomOfADeepTreeIsFound) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can give a file to another user";
    }
    const test::TemporaryFolder folder;
    makeChain(folder.path(), 300, 1);
    std::string bottom = folder.path();
    for (int level = 0; level < 300; ++level) {
        bottom += "/level";
    }
    ASSERT_EQ(::lchown((bottom + "/last").c_str(), 12345, 12345), 0);
    EXPECT_FALSE(everythingBeneathBelongsTo(::getuid(), folder.path(), 2));
}

TEST(OwnershipWalk, AHundredThousandFilesInOneFolderAreWalked) {
    const test::TemporaryFolder folder(test::TemporaryFolder::Storage::memory);
    const FileDescriptor top(::open(folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (int index = 0; index < 100'000; ++index) {
        ASSERT_EQ(::mknodat(top.get(), std::to_string(index).c_str(), S_IFREG | 0600, 0), 0);
    }
    EXPECT_TRUE(everythingBeneathBelongsTo(::getuid(), folder.path(), 2));
    EXPECT_FALSE(everythingBeneathBelongsTo(::getuid() + 1, folder.path(), 2));
}

TEST(OwnershipWalk, OfNoFolderEstablishesNothing) {
    EXPECT_FALSE(everythingBeneathBelongsTo(::getuid(), "/no/such/folder", 2));
    EXPECT_FALSE(everythingBeneathBelongsTo(::getuid(), "/etc/passwd", 2));
}

} // namespace
} // namespace kelmar
