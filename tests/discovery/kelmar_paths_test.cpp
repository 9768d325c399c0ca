#include "discovery/kelmar_paths.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace kelmar {
namespace {

KelmarPaths currentWith(const std::optional<std::string>& value) {
    if (value) {
        ::setenv("KELMAR_UNINSTALLER_TEST_ROOT", value->c_str(), 1);
    } else {
        ::unsetenv("KELMAR_UNINSTALLER_TEST_ROOT");
    }
    return KelmarPaths::current();
}

const KelmarPaths underT{"/tmp/t/system", "/tmp/t/home", "/tmp/t/tmp", "/tmp/t"};
const KelmarPaths real{"", "/home/ann", "/tmp", std::nullopt};

TEST(KelmarPathsCurrent, StandardisesTheTestRoot) {
    for (const char* const value :
         {"/tmp/t", "/tmp/t/", "//tmp//t", "/tmp/x/../t", "/tmp/./t/.", "/../tmp/t", "/tmp/t///"}) {
        EXPECT_EQ(currentWith(value), underT) << value;
    }
}

TEST(KelmarPathsCurrent, AValueThatNamesNoTestRootMeansTheRealMachine) {
    const KelmarPaths machine = currentWith(std::nullopt);
    EXPECT_EQ(machine.systemRoot, "");
    EXPECT_EQ(machine.testRoot, std::nullopt);
    for (const char* const value : {"", "/", "tmp/t", "~/t", "./t", " /tmp/t", "t"}) {
        EXPECT_EQ(currentWith(value), machine) << value;
    }
}

TEST(KelmarPathsCurrent, TheRealHomeIsStandardised) {
    const KelmarPaths machine = currentWith(std::nullopt);
    const passwd* const account = ::getpwuid(::getuid());
    if (account == nullptr) {
        GTEST_SKIP() << "this user has no account to look up";
    }
    std::string home = account->pw_dir;
    while (home.size() > 1 && home.back() == '/') {
        home.pop_back();
    }
    EXPECT_EQ(machine.home, home);
    ::setenv("TMPDIR", "/usr//lib/../", 1);
    EXPECT_EQ(currentWith(std::nullopt).temporaryDirectory, "/usr");
}

TEST(KelmarPathsCurrent, SeveralSlashesAreATestRootAtTheTop) {
    const KelmarPaths top{"/system", "/home", "/tmp", "/"};
    EXPECT_EQ(currentWith("//"), top);
    EXPECT_EQ(currentWith("/.."), top);
    EXPECT_EQ(top.display("/system/Library/Kelmar"), "/Library/Kelmar");
}

struct Case {
    KelmarPaths paths;
    std::string path;
    std::string shown;
};

class Display : public testing::TestWithParam<Case> {};

TEST_P(Display, GivesTheShortForm) {
    EXPECT_EQ(GetParam().paths.display(GetParam().path), GetParam().shown) << GetParam().path;
}

INSTANTIATE_TEST_SUITE_P(RealMachine, Display,
                         testing::Values(Case{real, "/home/ann", "~"},
                                         Case{real, "/home/ann/Kelmar/Store", "~/Kelmar/Store"},
                                         Case{real, "/home/ann/", "~/"},
                                         Case{real, "/home/anna", "/home/anna"},
                                         Case{real, "/home/anna/Kelmar", "/home/anna/Kelmar"},
                                         Case{real, "/Library/Kelmar", "/Library/Kelmar"},
                                         Case{real, "/system/Library", "/system/Library"},
                                         Case{real, "", ""}, Case{real, "/", "/"},
                                         Case{real, "/home/ann/\xFF\n", "~/\xFF\n"}));

INSTANTIATE_TEST_SUITE_P(UnderATestRoot, Display,
                         testing::Values(Case{underT, "/tmp/t/home", "~"},
                                         Case{underT, "/tmp/t/home/Kelmar", "~/Kelmar"},
                                         Case{underT, "/tmp/t/system/Library/Kelmar",
                                              "/Library/Kelmar"},
                                         Case{underT, "/tmp/t/system/", "/"},
                                         Case{underT, "/tmp/t/system", "/tmp/t/system"},
                                         Case{underT, "/tmp/t/systemic/x", "/tmp/t/systemic/x"},
                                         Case{underT, "/tmp/t/tmp/Kelmar", "/tmp/t/tmp/Kelmar"},
                                         Case{underT, "/tmp/t", "/tmp/t"},
                                         Case{underT, "/Library/Kelmar", "/Library/Kelmar"}));

TEST(KelmarPaths, AgentsAreTheApisBeforeTheWorkers) {
    EXPECT_EQ(real.agents(Scope::allUsers),
              (std::vector<std::string>{"/Library/LaunchAgents/com.kelmar.api.plist",
                                        "/Library/LaunchAgents/com.kelmar.worker.plist"}));
    EXPECT_EQ(real.agents(Scope::me),
              (std::vector<std::string>{"/home/ann/Library/LaunchAgents/com.kelmar.api.plist",
                                        "/home/ann/Library/LaunchAgents/com.kelmar.worker.plist"}));
}

TEST(KelmarPaths, FixedLocationsBeginWithTheScopesRoot) {
    EXPECT_EQ(real.app(Scope::allUsers), "/Applications/Kelmar.app");
    EXPECT_EQ(real.app(Scope::me), "/home/ann/Applications/Kelmar.app");
    EXPECT_EQ(underT.services(Scope::allUsers), "/tmp/t/system/Library/Kelmar");
    EXPECT_EQ(underT.services(Scope::me), "/tmp/t/home/Library/Kelmar");
    EXPECT_EQ(real.dataRoot(Scope::allUsers), "/Users/Shared/@Kelmar");
    EXPECT_EQ(real.dataRoot(Scope::me), "/home/ann/Kelmar");
}

TEST(KelmarPaths, TheFileBrowsersOwnNamesAreIgnorable) {
    EXPECT_TRUE(KelmarPaths::isIgnorable(".DS_Store"));
    EXPECT_TRUE(KelmarPaths::isIgnorable(".localized"));
    EXPECT_FALSE(KelmarPaths::isIgnorable(".ds_store"));
    EXPECT_FALSE(KelmarPaths::isIgnorable(""));
}

} // namespace
} // namespace kelmar
