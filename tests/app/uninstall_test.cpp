#include "system/files/file_descriptor.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/pipe.hpp"
#include "tests/support/program.hpp"
#include "tests/support/rm_words.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/support/temporary_folder.hpp"
#include "tests/support/unremovable.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace kelmar {
namespace {

class UninstallOption : public testing::Test {
protected:
    [[nodiscard]] test::ProgramEnd uninstall(const std::string& data) const {
        return test::uninstaller({"--uninstall", data}, folder / "t").run();
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
};

TEST_F(UninstallOption, WithNothingThereIsOneLine) {
    for (const char* const data : {"--keep-data", "--delete-data"}) {
        const test::ProgramEnd end = uninstall(data);
        EXPECT_EQ(end.output, "Kelmar isn't on this Mac; nothing to remove.\n");
        EXPECT_EQ(end.status, 0);
    }
}

TEST_F(UninstallOption, KeepsTheDataWhenItIsAllThereIs) {
    tree.dataFolder(Scope::me, "Store", 100).dataFolder(Scope::allUsers, "CDN", 100);
    const auto before = test::snapshot(folder / "t/home");
    const test::ProgramEnd end = uninstall("--keep-data");
    EXPECT_EQ(end.output, "Kelmar has been removed.\n");
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(test::snapshot(folder / "t/home"), before);
}

TEST_F(UninstallOption, TheChoiceOfDataMayStandAnywhereAmongTheOptions) {
    tree.dataFolder(Scope::me, "Store", 100);
    const test::ProgramEnd end =
        test::uninstaller({"x", "--uninstall", "--other", "-y", "--delete-data"}, folder / "t")
            .run();
    EXPECT_EQ(end.output, "==> Deleting your Kelmar data\n"
                          "    Removed ~/Kelmar/Store\n"
                          "    Removed ~/Kelmar\n"
                          "Kelmar has been removed.\n");
}

TEST_F(UninstallOption, DeletesSharedDataWithoutAPasswordUnderATestRoot) {
    tree.dataFolder(Scope::allUsers, "CDN", 100);
    EXPECT_EQ(uninstall("--delete-data").output, "==> Deleting the shared Kelmar data\n"
                                                 "    Removed /Users/Shared/@Kelmar/CDN\n"
                                                 "Kelmar has been removed.\n");
}

TEST_F(UninstallOption, RemovesEverythingInBothScopesAndASecondRunFindsNothing) {
    tree.everything();
    const auto other = test::contents(tree.paths().home + "/Kelmar/notes.txt");
    EXPECT_EQ(uninstall("--delete-data").status, 0);
    EXPECT_EQ(test::contents(tree.paths().home + "/Kelmar/notes.txt"), other);
    EXPECT_EQ(uninstall("--delete-data").output, "Kelmar isn't on this Mac; nothing to remove.\n");
}

TEST_F(UninstallOption, NamesWhatStayedWithTheTildeForm) {
    tree.dataFolder(Scope::me, "Store", 100).dataFolder(Scope::me, "Logs", 100);
    const test::Unremovable locked(tree.paths().home + "/Kelmar/Store/part-0");
    if (!locked.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    const test::ProgramEnd end = uninstall("--delete-data");
    EXPECT_EQ(end.status, 1);
    const std::string reason =
        test::rmRefusal(tree.paths().home + "/Kelmar/Store/part-0", "Operation not permitted");
    EXPECT_EQ(end.output, "==> Deleting your Kelmar data\n"
                          "    Could not remove ~/Kelmar/Store: " +
                              reason +
                              "\n"
                              "    Removed ~/Kelmar/Logs\n"
                              "    ~/Kelmar: it still holds Store.\n"
                              "Not removed:\n"
                              "    ~/Kelmar/Store: " +
                              reason + "\n");
}

TEST_F(UninstallOption, OutputThatGoesNowhereStopsNothing) {
    for (const bool isDiskFull : {true, false}) {
        tree.everything();
        test::Program program = test::uninstaller({"--uninstall", "--delete-data"}, folder / "t");
        program.inChild = [isDiskFull] {
            const test::Pipe unread = test::makePipe();
            const FileDescriptor full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
            ::dup2(isDiskFull ? full.get() : unread.writeEnd.get(), STDOUT_FILENO);
        };
        EXPECT_EQ(program.run().status, 0)
            << (isDiskFull ? "a full disk" : "a pipe without a reader");
        EXPECT_EQ(uninstall("--delete-data").output,
                  "Kelmar isn't on this Mac; nothing to remove.\n");
        EXPECT_TRUE(std::filesystem::is_empty(tree.paths().temporaryDirectory));
    }
}

} // namespace
} // namespace kelmar
