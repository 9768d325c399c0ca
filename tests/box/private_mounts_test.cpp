#include "tests/support/private_mounts.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

#include <unistd.h>

namespace kelmar {
namespace {

/// A test's folder with something of this machine mounted in it.
struct Mounted {
    explicit Mounted(const std::string& machines) {
        mounts.bind(machines, folder / "inside");
        EXPECT_TRUE(std::filesystem::exists(folder / "inside/file"));
        throw std::runtime_error("half-way");
    }

    test::TemporaryFolder folder;
    test::PrivateMounts mounts;
};

TEST(PrivateMounts, AreGoneBeforeTheirFolderIsRemovedEvenIfMakingThemFails) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can mount something";
    }
    const test::TemporaryFolder machines;
    std::ofstream(machines / "file") << "of this machine\n";
    try {
        const Mounted mounted(machines.path());
    } catch (const std::system_error& error) {
        GTEST_SKIP() << "this machine lets nobody mount anything: " << error.what();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "half-way");
    }
    EXPECT_TRUE(std::filesystem::exists(machines / "file"));
}

} // namespace
} // namespace kelmar
