#include "discovery/scanner.hpp"
#include "system/mac_tools/disk_usage.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/no_threads.hpp"
#include "tests/support/private_mounts.hpp"
#include "tests/support/silent_file_system.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <list>
#include <optional>
#include <system_error>

#include <unistd.h>

namespace kelmar {
namespace {

/// Nothing that is asked of the disk in question is ever answered.
class SilentDisk : public testing::Test {
protected:
    void SetUp() override {
        if (::getuid() != 0) {
            GTEST_SKIP() << "only root can mount something";
        }
        try {
            mounts.emplace();
        } catch (const std::system_error& error) {
            GTEST_SKIP() << "this machine lets nobody mount anything: " << error.what();
        }
    }

    /// Puts the disk at a folder; false when this machine has no such disk.
    bool mountAt(const std::string& place) {
        tree.folder(place);
        return disks.emplace_back(*mounts, place).works();
    }

    static constexpr std::chrono::milliseconds patience{100};

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    std::optional<test::PrivateMounts> mounts;
    std::list<test::SilentFileSystem> disks;
};

TEST_F(SilentDisk, IsNotMeasured) {
    if (!mountAt(folder / "disk")) {
        GTEST_SKIP() << test::SilentFileSystem::skipReason;
    }
    EXPECT_EQ(DiskUsage::kibibytes(folder / "disk", patience), std::nullopt);
}

TEST_F(SilentDisk, WithTheDataRootOnItHasNone) {
    for (const Scope scope : {Scope::me, Scope::allUsers}) {
        if (!mountAt(tree.paths().dataRoot(scope))) {
            GTEST_SKIP() << test::SilentFileSystem::skipReason;
        }
        EXPECT_EQ(Scanner::dataRoot(scope, tree.paths(), patience), std::nullopt);
    }
}

TEST(DataRoot, IsReadWithoutAThreadAsWell) {
    const test::TemporaryFolder folder;
    const test::MacTree tree = test::MacTree(folder / "t").dataFolder(Scope::me, "Store");
    const test::NoThreads noThreads;
    EXPECT_TRUE(Scanner::dataRoot(Scope::me, tree.paths()));
}

} // namespace
} // namespace kelmar
