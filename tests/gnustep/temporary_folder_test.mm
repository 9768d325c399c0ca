#include "system/files/user_folders.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#import <Foundation/Foundation.h>

namespace kelmar {
namespace {

/// Which one it is, is the system's affair: the Linux source has tests of its own for that.
TEST(TemporaryFolder, IsTheOneThatFoundationNames) {
    const std::string folder = temporaryFolder();
    EXPECT_EQ(folder, std::string([NSTemporaryDirectory() UTF8String]));
    EXPECT_TRUE(std::filesystem::is_directory(folder)) << folder;
    EXPECT_TRUE(folder.starts_with(std::getenv("TEMP"))) << folder;
}

} // namespace
} // namespace kelmar
