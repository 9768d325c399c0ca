#include "system/files/file_descriptor.hpp"
#include "system/files/folder_entries_portable.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {
namespace {

namespace fs = std::filesystem;

using Read = FolderReading (*)(int, const std::function<bool(const FolderEntry&)>&);

void makeFile(const std::string& path, const char* text = "") {
    std::ofstream file(path);
    file << text;
}

FileDescriptor opened(const std::string& path) {
    return FileDescriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

/// Both ways to read a folder: the system's own, and the one that works everywhere.
class FolderEntries : public testing::TestWithParam<Read> {
protected:
    using Seen = std::map<std::string, std::pair<uid_t, bool>>;

    static Seen seen(const std::string& path) {
        Seen entries;
        const FileDescriptor folder = opened(path);
        const auto visit = [&entries](const FolderEntry& entry) {
            entries[std::string(entry.name)] = {entry.owner, entry.isFolder};
            return true;
        };
        EXPECT_EQ(GetParam()(folder.get(), visit), FolderReading::complete);
        return entries;
    }

    test::TemporaryFolder root;
};

TEST_P(FolderEntries, AreWhatLstatSaysOfEach) {
    fs::create_directory(root / "folder");
    makeFile(root / "file");
    makeFile(root / ".hidden");
    fs::create_directory_symlink("folder", root / "link to a folder");
    fs::create_symlink("nowhere", root / "dangling");
    ASSERT_EQ(::mkfifo((root / "pipe").c_str(), 0600), 0);
    const uid_t me = ::getuid();
    EXPECT_EQ(seen(root.path()), (Seen{{"folder", {me, true}},
                                       {"file", {me, false}},
                                       {".hidden", {me, false}},
                                       {"link to a folder", {me, false}},
                                       {"dangling", {me, false}},
                                       {"pipe", {me, false}}}));
}

TEST_P(FolderEntries, OfAnotherUserAreHis) {
    makeFile(root / "his");
    if (::lchown((root / "his").c_str(), 12'345, static_cast<gid_t>(-1)) != 0) {
        GTEST_SKIP() << "only root can give a file away";
    }
    EXPECT_EQ(seen(root.path()), (Seen{{"his", {12'345, false}}}));
}

TEST_P(FolderEntries, ComeCompleteFromABigFolder) {
    for (int number = 0; number < 3'000; ++number) {
        std::ofstream(root / ("a name of some length, to fill buffers " + std::to_string(number)));
    }
    EXPECT_EQ(seen(root.path()).size(), 3'000U);
}

TEST_P(FolderEntries, StopWhenTheVisitorHasSeenEnough) {
    makeFile(root / "a");
    makeFile(root / "b");
    const FileDescriptor folder = opened(root.path());
    int visits = 0;
    const auto visit = [&visits](const FolderEntry&) { return ++visits < 1; };
    EXPECT_EQ(GetParam()(folder.get(), visit), FolderReading::stopped);
    EXPECT_EQ(visits, 1);
}

TEST_P(FolderEntries, LeaveTheDescriptorOpen) {
    const FileDescriptor folder = opened(root.path());
    GetParam()(folder.get(), [](const FolderEntry&) { return true; });
    EXPECT_NE(::fcntl(folder.get(), F_GETFD), -1);
}

TEST_P(FolderEntries, AreNotReadFromWhatIsNoFolder) {
    makeFile(root / "file", "text");
    const FileDescriptor file(::open((root / "file").c_str(), O_RDONLY | O_CLOEXEC));
    const auto visit = [](const FolderEntry&) { return true; };
    EXPECT_EQ(GetParam()(file.get(), visit), FolderReading::failed);
    EXPECT_EQ(GetParam()(-1, visit), FolderReading::failed);
}

INSTANTIATE_TEST_SUITE_P(Native, FolderEntries, testing::Values(readFolder));
INSTANTIATE_TEST_SUITE_P(Portable, FolderEntries, testing::Values(readFolderPortably));

} // namespace
} // namespace kelmar
