#include "tests/support/mac_tree.hpp"
#include "tests/support/program.hpp"
#include "tests/support/rm_words.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

#include <sys/mount.h>
#include <unistd.h>

namespace kelmar {
namespace {

namespace fs = std::filesystem;

/// Things that go wrong while the program runs. Whatever does, data that was not chosen stays what
/// it was.
class Faults : public testing::Test {
protected:
    void SetUp() override {
        tree.everything();
        kept = test::contents(tree.paths().home + "/Kelmar");
        keptForAll = test::contents(tree.paths().dataRoot(Scope::allUsers));
    }

    void expectDataKept() const {
        EXPECT_EQ(test::contents(tree.paths().home + "/Kelmar"), kept);
        EXPECT_EQ(test::contents(tree.paths().dataRoot(Scope::allUsers)), keptForAll);
    }

    [[nodiscard]] test::Program keepData() const {
        return test::uninstaller({"--uninstall", "--keep-data"}, folder / "t");
    }

    /// The program with another script beside it than its own.
    [[nodiscard]] test::Program withScript(const std::string& script) const {
        test::Program program = keepData();
        program.runBeside(script, folder / "program");
        return program;
    }

    void expectLeft(const test::ProgramEnd& end, const std::string& reason) const {
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.error, "");
        EXPECT_NE(end.output.find("Not removed:\n    Administrator step: " + reason),
                  std::string::npos)
            << end.output;
        EXPECT_TRUE(temporaryFolderIsClean());
        expectDataKept();
    }

    [[nodiscard]] bool temporaryFolderIsClean() const {
        return !fs::exists(tree.paths().temporaryDirectory) ||
               fs::is_empty(tree.paths().temporaryDirectory);
    }

    test::TemporaryFolder folder;
    test::MacTree tree{folder / "t"};
    std::map<std::string, std::string> kept;
    std::map<std::string, std::string> keptForAll;
};

TEST_F(Faults, AMissingTemporaryFolderIsMade) {
    fs::remove_all(tree.paths().temporaryDirectory);
    EXPECT_EQ(keepData().run().status, 0);
    expectDataKept();
}

TEST_F(Faults, ATemporaryFolderThatIsAFileFailsTheStepAndNotTheRest) {
    fs::remove_all(tree.paths().temporaryDirectory);
    tree.file(tree.paths().temporaryDirectory, "in the way");
    const test::ProgramEnd end = keepData().run();
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.output.find("    /Library/Kelmar: it is still there\n"), std::string::npos)
        << end.output;
    EXPECT_FALSE(fs::exists(tree.paths().services(Scope::me)));
    expectDataKept();
}

TEST_F(Faults, ATemporaryFolderThatIsFullLosesTheProgressAndNotTheWork) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can mount a small disk";
    }
    fs::remove_all(tree.paths().temporaryDirectory);
    fs::create_directory(tree.paths().temporaryDirectory);
    // In a namespace of the child's own, so that the small disk is gone with it.
    test::Program program = keepData();
    const std::string place = tree.paths().temporaryDirectory;
    program.inChild = [place] {
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("tmpfs", place.c_str(), "tmpfs", 0, "size=4k") != 0) {
            ::_exit(99);
        }
        std::ofstream(place + "/filler") << std::string(4096, 'x');
    };
    const test::ProgramEnd end = program.run();
    if (end.status == 99) {
        GTEST_SKIP() << "this machine lets nobody mount a small disk";
    }
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(
        end.output.find("Not removed:\n    Administrator step: it stopped before it finished\n"),
        std::string::npos)
        << end.output;
    EXPECT_FALSE(fs::exists(tree.paths().services(Scope::allUsers))) << "it did finish";
    expectDataKept();
}

TEST_F(Faults, AMissingScriptIsNamed) {
    test::Program program = withScript("");
    fs::remove(folder / "program/uninstall-as-admin.sh");
    const test::ProgramEnd end = program.run();
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.output.find("    uninstall-as-admin.sh: missing from Kelmar Uninstaller.app\n"),
              std::string::npos);
    EXPECT_FALSE(fs::exists(tree.paths().services(Scope::me)));
    expectDataKept();
}

TEST_F(Faults, AScriptThatCannotBeReadFails) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "the script is closed to an ordinary user, whom only root can become";
    }
    test::Program program = withScript("exit 0\n");
    fs::permissions(folder / "program/uninstall-as-admin.sh", fs::perms::none);
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder / "t")) {
        ASSERT_EQ(::lchown(entry.path().c_str(), 65534, 65534), 0);
    }
    kept = test::contents(tree.paths().home + "/Kelmar");
    keptForAll = test::contents(tree.paths().dataRoot(Scope::allUsers));
    program.user = 65534;
    const test::ProgramEnd end = program.run();
    EXPECT_EQ(end.status, 1);
    EXPECT_NE(end.output.find("uninstall-as-admin.sh: Permission denied"), std::string::npos)
        << end.output;
    expectDataKept();
}

TEST_F(Faults, AScriptThatDiesHalfWayFails) {
    expectLeft(withScript("printf 'LOG begun\\n' >>\"$2\"\necho why >&2\nkill -TERM $$\n").run(),
               "why\n");
}

TEST_F(Faults, AScriptThatHangsItsStatusFileUpStoppedBeforeItFinished) {
    expectLeft(withScript("rm -f \"$2\"\n").run(), "it stopped before it finished\n");
    expectLeft(withScript("rm -rf \"$(dirname \"$2\")\"\n").run(),
               "it stopped before it finished\n");
}

TEST_F(Faults, AScriptWithoutDoneStoppedBeforeItFinished) {
    expectLeft(withScript("printf 'LOG a\\nDON' >>\"$2\"\n").run(),
               "it stopped before it finished\n");
}

TEST_F(Faults, AMegabyteWithoutALineEndIsTakenAsOneLine) {
    const test::ProgramEnd end =
        withScript("printf 'LOG ' >>\"$2\"; head -c 1000000 /dev/zero | tr '\\0' x >>\"$2\"\n")
            .run();
    expectLeft(end, "it stopped before it finished\n");
    EXPECT_GT(end.output.size(), 1'000'000U);
}

TEST_F(Faults, AFailLineWithoutAPathEndsTheProgramWithOneLine) {
    const test::ProgramEnd end = withScript("printf 'FAIL \\n' >>\"$2\"; sleep 0.5\n").run();
    EXPECT_EQ(end.status, -SIGABRT);
    EXPECT_EQ(end.error,
              "Kelmar Uninstaller: broken contract: the administrator's script wrote a FAIL line "
              "without a path\n");
    expectDataKept();
}

TEST_F(Faults, AFolderWithoutWritePermissionIsNamedAndTheRestGoes) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "permissions count for an ordinary user, whom only root can become";
    }
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder / "t")) {
        ASSERT_EQ(::lchown(entry.path().c_str(), 65534, 65534), 0);
    }
    kept = test::contents(tree.paths().home + "/Kelmar");
    keptForAll = test::contents(tree.paths().dataRoot(Scope::allUsers));
    fs::permissions(tree.paths().home + "/Library/LaunchAgents", fs::perms(0555));
    test::Program program = keepData();
    program.runAs(65534, folder / "program");
    const test::ProgramEnd end = program.run();
    EXPECT_EQ(end.status, 1);
    const std::string path = tree.paths().agents(Scope::me)[0];
    EXPECT_NE(end.output.find("    ~/Library/LaunchAgents/com.kelmar.api.plist: " +
                              test::rmRefusal(path, "Permission denied") + "\n"),
              std::string::npos)
        << end.output;
    EXPECT_FALSE(fs::exists(tree.paths().services(Scope::me)));
    EXPECT_FALSE(fs::exists(tree.paths().app(Scope::allUsers)));
    expectDataKept();
}

} // namespace
} // namespace kelmar
