#include "tests/admin/script_fixture.hpp"
#include "tests/support/snapshot.hpp"

#include <algorithm>

#include <sys/stat.h>

namespace kelmar {
namespace {

class ScriptArguments : public test::Script {
protected:
    /// One line on standard error, this exit status, and nothing of the tree changed.
    void expectRefusal(const Lines& arguments, int exitStatus, const std::string& message) const {
        const auto before = test::contents(folder.path());
        const test::ProgramEnd end = runWith(arguments);
        EXPECT_EQ(end.status, exitStatus) << message;
        EXPECT_EQ(end.output, "");
        EXPECT_EQ(end.error, "uninstall-as-admin.sh: " + message + "\n");
        EXPECT_EQ(test::contents(folder.path()), before) << message;
    }

    void SetUp() override { tree.everything(); }

    std::string root = tree.paths().systemRoot;
};

TEST_F(ScriptArguments, UnknownOnesAreRefused) {
    for (const char* const unknown : {"--all", "-x", "", "word", "--status=x", "--all-users=yes"}) {
        expectRefusal({"--status", status, "--all-users", unknown}, 2,
                      "an argument that it does not know");
    }
}

TEST_F(ScriptArguments, MissingOnesAreRefused) {
    expectRefusal({}, 2, "--status: missing");
    expectRefusal({"--all-users", "--test-root", root}, 2, "--status: missing");
    expectRefusal({"--status"}, 2, "--status: its path is missing");
    expectRefusal({"--status", status}, 2, "nothing to do");
    expectRefusal({"--status", status, "--test-root", root}, 2, "nothing to do");
    expectRefusal({"--status", status, "--all-users", "--test-root"}, 2,
                  "--test-root: its path is missing");
    expectRefusal({"--status", status, "--shared-data"}, 2, "--shared-data: its path is missing");
    expectRefusal({"--status", status, "--home"}, 2, "--home: its path is missing");
}

TEST_F(ScriptArguments, DoubledOnesAreRefused) {
    expectRefusal({"--status", status, "--status", status, "--all-users"}, 2,
                  "--status: given twice");
    expectRefusal({"--status", status, "--all-users", "--all-users"}, 2,
                  "--all-users: given twice");
    expectRefusal({"--status", status, "--home", home(""), "--home", home("")}, 2,
                  "--home: given twice");
    expectRefusal({"--status", status, "--all-users", "--test-root", root, "--test-root", root}, 2,
                  "--test-root: given twice");
}

TEST_F(ScriptArguments, EmptyAndRelativePathsAreRefused) {
    for (const char* const option : {"--status", "--shared-data", "--home", "--test-root"}) {
        for (const char* const path : {"", "relative", "./x", "../x", " /x", "~"}) {
            expectRefusal({option, path, "--all-users"}, 2,
                          std::string(option) + ": not an absolute path");
        }
    }
}

TEST_F(ScriptArguments, ControlCharactersInPathsAreRefused) {
    for (const char* const option : {"--status", "--shared-data", "--home", "--test-root"}) {
        for (const char* const path : {"/x\nOK /y", "/x\ty", "/\r", "/\x7F", "/\x1B[2J"}) {
            expectRefusal({option, path, "--all-users"}, 2,
                          std::string(option) + ": a control character in its path");
        }
    }
}

TEST_F(ScriptArguments, TheRootFolderIsNobodysHome) {
    expectRefusal({"--status", status, "--home", "/", "--test-root", root}, 2,
                  "--home: not a person's home folder");
}

TEST_F(ScriptArguments, AStatusFileThatIsNoPlainFileOfTheUserIsRefused) {
    const std::string refusal = "the status file is not a plain file of the user";
    const std::string place = folder / "t/tmp/run 1/";
    tree.link(place + "link", status).folder(place + "folder").file(place + "twin");
    std::filesystem::create_hard_link(place + "twin", place + "other name");
    ASSERT_EQ(::mkfifo((place + "pipe").c_str(), 0600), 0);
    for (const char* const name : {"link", "folder", "pipe", "twin", "missing"}) {
        expectRefusal({"--status", place + name, "--all-users", "--test-root", root}, 1, refusal);
    }
    expectRefusal({"--status", "/dev/null", "--all-users", "--test-root", root}, 1, refusal);
}

} // namespace
} // namespace kelmar
