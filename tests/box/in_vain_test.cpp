#include "tests/box/uninstall_fixture.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace kelmar {
namespace {

namespace fs = std::filesystem;
using test::ProgramEnd;

/// What no password can remove is reported before the program asks for one.
class InVain : public test::UninstallOnAPretendMac {
protected:
    /// A run in which the password is refused: all that it reports was printed before.
    [[nodiscard]] ProgramEnd refused() const {
        box->answerPasswordWith("exit 1\n");
        return uninstall("--delete-data");
    }
};

TEST_F(InVain, ASharedDataRootThatIsALinkIsNamed) {
    box->tree().dataFolder(Scope::allUsers, "CDN", 1000);
    const std::string root = box->outside("/Users/Shared/@Kelmar");
    fs::rename(root, box->outside("/Users/Shared/elsewhere"));
    fs::create_directory_symlink("elsewhere", root);
    EXPECT_EQ(refused().output,
              "==> Deleting the shared Kelmar data\n"
              "    /Users/Shared/@Kelmar: it is a link, and the administrator's part follows none. "
              "The data there will stay.\n"
              "    No administrator's password was given; nothing was removed.\n"
              "Cancelled at the administrator password prompt; nothing was removed.\n");
    box->answerPasswordWith(std::string("echo '") + test::Box::password + "'\n");
    EXPECT_EQ(uninstall("--delete-data").status, 1);
    EXPECT_TRUE(isThere("/Users/Shared/elsewhere/CDN")) << "it does stay";
}

TEST_F(InVain, ALinkIsNotNamedWhereItsDataIsKept) {
    installEverything();
    const std::string root = box->outside("/Users/Shared/@Kelmar");
    fs::rename(root, box->outside("/Users/Shared/elsewhere"));
    fs::create_directory_symlink("elsewhere", root);
    EXPECT_EQ(uninstall("--keep-data").output.find("it is a link"), std::string::npos);
}

TEST_F(InVain, AFolderOfOnesOwnThatCannotBeReadIsNamed) {
    installForMe();
    box->tree().folder(box->outside("/Users/ann/Library/Kelmar/closed/below"));
    box->chownToUser("/Users/ann");
    fs::permissions(box->outside("/Users/ann/Library/Kelmar/closed"), fs::perms::none);
    const std::string output = refused().output;
    EXPECT_NE(output.find("==> Removing files only an administrator can delete\n"
                          "    ~/Library/Kelmar/closed: it is yours, but you may not read it. It "
                          "counts as somebody else's and may stay.\n"
                          "    No administrator's password was given"),
              std::string::npos)
        << output;
}

TEST_F(InVain, AFileOfSomebodyElseIsWorthAPassword) {
    installForMe();
    box->tree().file(box->outside("/Users/ann/Library/Kelmar/theirs"));
    EXPECT_EQ(refused().output.find("may not read"), std::string::npos);
}

} // namespace
} // namespace kelmar
