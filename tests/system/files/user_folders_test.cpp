#include "system/files/user_folders.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

#include <pwd.h>
#include <unistd.h>

namespace kelmar {
namespace {

/// A variable of the environment that has its value back when the test has ended.
class Variable {
public:
    explicit Variable(const char* name) : name_(name) {
        const char* const value = std::getenv(name);
        before_ = value != nullptr ? std::optional<std::string>(value) : std::nullopt;
    }

    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    ~Variable() { set(before_ ? before_->c_str() : nullptr); }

    /// Null: not there at all.
    void set(const char* value) const {
        if (value != nullptr) {
            ::setenv(name_, value, 1);
        } else {
            ::unsetenv(name_);
        }
    }

private:
    const char* name_;
    std::optional<std::string> before_;
};

TEST(HomeFolder, IsTheAccountsOwnWhateverTheEnvironmentSays) {
    const passwd* const account = ::getpwuid(::getuid());
    if (account == nullptr) {
        GTEST_SKIP() << "this user has no account to look up";
    }
    const Variable home("HOME");
    home.set("/elsewhere");
    EXPECT_EQ(homeFolder(), account->pw_dir);
}

TEST(TemporaryFolder, IsTheEnvironmentsWhenThatIsAFolder) {
    const Variable folder("TMPDIR");
    folder.set("/usr");
    EXPECT_EQ(temporaryFolder(), "/usr");
}

TEST(TemporaryFolder, IsTheSystemsOtherwise) {
    const Variable folder("TMPDIR");
    folder.set(nullptr);
    EXPECT_EQ(temporaryFolder(), "/tmp");
    for (const char* const useless : {"", "usr", "/no/such/folder", "/etc/passwd"}) {
        folder.set(useless);
        EXPECT_EQ(temporaryFolder(), "/tmp") << useless;
    }
}

} // namespace
} // namespace kelmar
