#include "system/files/file_descriptor.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/pipe.hpp"
#include "tests/support/program.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelmar {
namespace {

class Output : public testing::Test {
protected:
    void SetUp() override { tree.everything(); }

    [[nodiscard]] test::Program scan() const { return test::uninstaller({"--scan"}, folder / "t"); }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_F(Output, IntoAFileIsTheSame) {
    const std::string expected = scan().run().output;
    test::Program program = scan();
    const std::string path = folder / "listing";
    program.inChild = [path] {
        const FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
        ::dup2(file.get(), STDOUT_FILENO);
    };
    EXPECT_EQ(program.run().status, 0);
    std::ostringstream written;
    written << std::ifstream(path).rdbuf();
    EXPECT_EQ(written.str(), expected);
}

TEST_F(Output, AReaderThatGoesAwayStopsNothing) {
    test::Program program = scan();
    program.inChild = [] {
        const test::Pipe unread = test::makePipe();
        ::dup2(unread.writeEnd.get(), STDOUT_FILENO);
    };
    EXPECT_EQ(program.run().status, 0) << "the signal of a broken pipe is ignored";
}

/// A scan whose first data folder takes as long as the test lets it: `du` is in the way of a pipe.
TEST_F(Output, AReaderThatGoesAwayEndsTheListing) {
    // What du(1) reads leaves a trace: a folder that was read was measured.
    const std::string folderOfData = tree.paths().dataRoot(Scope::me) + "/Database";
    const auto measured = [&folderOfData] {
        struct stat status {};

        EXPECT_EQ(::stat(folderOfData.c_str(), &status), 0);
        return status.st_atim.tv_sec != 1;
    };
    const timespec longAgo[2] = {{1, 0}, {1, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, folderOfData.c_str(), longAgo, 0), 0);
    test::Program program = scan();
    program.inChild = [] {
        int ends[2];
        if (::pipe(ends) == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            ::close(ends[0]);
            ::close(ends[1]);
        }
    };
    EXPECT_EQ(program.run().status, 0);
    EXPECT_FALSE(measured());
    EXPECT_EQ(scan().run().status, 0);
    if (!measured()) {
        GTEST_SKIP() << "here no trace is left of what was read";
    }
}

TEST_F(Output, AFullDiskStopsNothing) {
    test::Program program = scan();
    program.inChild = [] {
        const FileDescriptor full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
        ::dup2(full.get(), STDOUT_FILENO);
    };
    const test::ProgramEnd end = program.run();
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
}

TEST_F(Output, IntoAPipeThatDoesNotBlockIsWhole) {
    test::Program program = scan();
    program.inChild = [] {
        ::fcntl(STDOUT_FILENO, F_SETPIPE_SZ, 4096);
        ::fcntl(STDOUT_FILENO, F_SETFL, ::fcntl(STDOUT_FILENO, F_GETFL) | O_NONBLOCK);
    };
    EXPECT_EQ(program.run().output, scan().run().output);
}

TEST_F(Output, ExitStatusesOfChildrenSurviveAParentThatIgnoresThem) {
    // Started by something that ignores SIGCHLD, wait(2) would know nothing of du's end.
    test::Program program = scan();
    program.inChild = [] { ::signal(SIGCHLD, SIG_IGN); };
    EXPECT_EQ(program.run().output, scan().run().output);
}

} // namespace
} // namespace kelmar
