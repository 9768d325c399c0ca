#include "system/user_folders.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include <pwd.h>
#include <unistd.h>

namespace kelmar {
namespace {

TEST(HomeFolder, IsTheAccountsOwnWhateverTheEnvironmentSays) {
    const passwd* const account = ::getpwuid(::getuid());
    if (account == nullptr) {
        GTEST_SKIP() << "this user has no account to look up";
    }
    ::setenv("HOME", "/elsewhere", 1);
    EXPECT_EQ(homeFolder(), account->pw_dir);
}

TEST(TemporaryFolder, IsTheEnvironmentsWhenThatIsAFolder) {
    ::setenv("TMPDIR", "/usr", 1);
    EXPECT_EQ(temporaryFolder(), "/usr");
}

TEST(TemporaryFolder, IsTheSystemsOtherwise) {
    ::unsetenv("TMPDIR");
    EXPECT_EQ(temporaryFolder(), "/tmp");
    for (const char* const useless : {"", "usr", "/no/such/folder", "/etc/passwd"}) {
        ::setenv("TMPDIR", useless, 1);
        EXPECT_EQ(temporaryFolder(), "/tmp") << useless;
    }
}

} // namespace
} // namespace kelmar
