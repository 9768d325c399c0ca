#include "system/files/files.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {
namespace {

using Names = std::vector<std::string>;

class Files : public testing::Test {
protected:
    void write(const std::string& name, const std::string& text = "") const {
        std::ofstream(folder / name) << text;
    }

    test::TemporaryFolder folder;
};

TEST_F(Files, ADanglingLinkExists) {
    std::filesystem::create_symlink("nowhere", folder / "link");
    EXPECT_TRUE(exists(folder / "link"));
    EXPECT_FALSE(exists(folder / "nowhere"));
    EXPECT_FALSE(exists(folder / "link/below"));
}

TEST_F(Files, NamesAreSortedByBytesHiddenOnesIncluded) {
    for (const char* const name : {"b", "A", ".hidden", "\xC3\xA9", "Z", "a", "10", "9"}) {
        write(name);
    }
    EXPECT_EQ(sortedNames(folder.path()),
              (Names{".hidden", "10", "9", "A", "Z", "a", "b", "\xC3\xA9"}));
}

TEST_F(Files, NamesThatAreNotTextPassThroughUnharmed) {
    const Names odd{"a\nb", "q\"'", "\xF0\x9F\x98\x80", "\xFF\xFE"};
    for (const std::string& name : odd) {
        write(name);
    }
    EXPECT_EQ(sortedNames(folder.path()), odd);
}

TEST_F(Files, AnEmptyFolderHasNoNames) {
    EXPECT_EQ(sortedNames(folder.path()), Names{});
}

TEST_F(Files, WhatIsNoFolderCannotBeListed) {
    write("file");
    std::filesystem::create_symlink("file", folder / "link");
    std::filesystem::create_symlink("self", folder / "self");
    for (const char* const name : {"file", "link", "self", "missing"}) {
        EXPECT_EQ(sortedNames(folder / name), std::nullopt) << name;
    }
}

TEST_F(Files, ALinkToAFolderIsListedAsThatFolder) {
    std::filesystem::create_directory(folder / "real");
    write("real/inside");
    std::filesystem::create_symlink("real", folder / "link");
    EXPECT_EQ(sortedNames(folder / "link"), Names{"inside"});
}

TEST_F(Files, AFileIsReadUpToItsLimit) {
    write("file", "0123456789");
    EXPECT_EQ(readFile(folder / "file", 10), "0123456789");
    EXPECT_EQ(readFile(folder / "file", 9), std::nullopt);
    write("empty");
    EXPECT_EQ(readFile(folder / "empty", 10), "");
}

TEST_F(Files, OnlyARegularFileIsRead) {
    std::filesystem::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(readFile(folder / "folder", 10), std::nullopt);
    EXPECT_EQ(readFile(folder / "pipe", 10), std::nullopt) << "and reading it did not wait";
    EXPECT_EQ(readFile("/dev/zero", 10), std::nullopt);
    EXPECT_EQ(readFile(folder / "missing", 10), std::nullopt);
}

} // namespace
} // namespace kelmar
