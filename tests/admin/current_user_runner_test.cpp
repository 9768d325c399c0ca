#include "admin/current_user_runner.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace kelmar {
namespace {

class CurrentUser : public testing::Test {
protected:
    /// What the runner threw, as "failed: text"; empty when it returned.
    [[nodiscard]] std::string run(const std::string& script,
                                  const std::vector<std::string>& arguments) const {
        const std::string path = folder / "the script.sh";
        std::ofstream(path) << script;
        return runFile(path, arguments);
    }

    [[nodiscard]] static std::string runFile(const std::string& path,
                                             const std::vector<std::string>& arguments) {
        try {
            CurrentUserRunner().run(path, arguments, "why");
            return "";
        } catch (const AdministratorError& error) {
            const bool failed = error.kind() == AdministratorError::Kind::failed;
            return (failed ? "failed: " : "cancelled: ") + std::string(error.what());
        }
    }

    test::TemporaryFolder folder;
};

TEST_F(CurrentUser, ReturnsWhenTheScriptEndsWell) {
    EXPECT_EQ(run("echo whatever; echo more >&2; exit 0", {}), "");
}

TEST_F(CurrentUser, ThrowsTheTrimmedOutput) {
    EXPECT_EQ(run("printf '  boom\\n'; exit 2", {}), "failed: boom");
    EXPECT_EQ(run("echo one; echo two >&2; exit 1", {}), "failed: one\ntwo");
    EXPECT_EQ(run("exit 1", {}), "failed: ");
}

TEST_F(CurrentUser, PassesEveryArgumentAsOne) {
    const std::string file = folder / "arguments";
    const std::vector<std::string> odd{file, "it's", "a b", "\"\\", "", "$HOME"};
    EXPECT_EQ(run("printf '<%s>' \"$@\" >\"$1\"", odd), "");
    std::ostringstream written;
    written << std::ifstream(file).rdbuf();
    EXPECT_EQ(written.str(), "<" + file + "><it's><a b><\"\\><><$HOME>");
}

TEST_F(CurrentUser, AScriptThatIsNotThereFailsInTheShellsWords) {
    const std::string error = runFile(folder / "missing.sh", {});
    EXPECT_EQ(error.substr(0, 8), "failed: ");
    EXPECT_NE(error.find("No such file or directory"), std::string::npos) << error;
}

} // namespace
} // namespace kelmar
