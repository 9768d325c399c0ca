#include "admin/script_request.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Arguments = std::vector<std::string>;

const Asker ann{"/Users/ann", "/var/folders/xy/T"};
const std::string soundStatus =
    "/var/folders/xy/T/kelmar-uninstaller-0123ABCD-4567-4890-ABCD-0123456789AB/status";

std::optional<std::string> reasonFor(Arguments arguments) {
    arguments.insert(arguments.begin(), {"--status", soundStatus});
    return reasonForRequest(arguments, ann);
}

TEST(ScriptRequest, HasTheReasonThatTheProgramGives) {
    const std::string start = "Kelmar Uninstaller needs an administrator's password to ";
    const std::string all = start + "remove Kelmar, which is installed for all users of this Mac.";
    const std::string own = start + "remove files of Kelmar that belong to the system.";
    const std::string data = start + "delete the Kelmar data shared by all users of this Mac.";
    const Arguments shared{"--shared-data", "/Users/Shared/@Kelmar/CDN"};
    EXPECT_EQ(reasonFor({"--all-users"}), all);
    EXPECT_EQ(reasonFor({"--home", "/Users/ann"}), own);
    EXPECT_EQ(reasonFor(shared), data);
    EXPECT_EQ(reasonFor({shared[0], shared[1], shared[0], "/Users/Shared/@Kelmar/Models"}), data);
    EXPECT_EQ(reasonFor({shared[0], shared[1], "--home", "/Users/ann"}), own);
    EXPECT_EQ(reasonFor({"--all-users", shared[0], shared[1], "--home", "/Users/ann"}), all);
}

TEST(ScriptRequest, IsNeverForATestRoot) {
    EXPECT_EQ(reasonFor({"--all-users", "--test-root", "/tmp/t/system"}), std::nullopt);
    EXPECT_EQ(reasonFor({"--test-root", "/tmp/t/system", "--all-users"}), std::nullopt);
}

TEST(ScriptRequest, IsForNobodyElsesHome) {
    for (const char* const home : {"/Users/bob", "/Users/ann/", "/Users/ann/../bob", "/", ""}) {
        EXPECT_EQ(reasonFor({"--home", home}), std::nullopt) << home;
    }
    EXPECT_EQ(reasonFor({"--home", "/Users/ann", "--home", "/Users/bob"}), std::nullopt);
}

TEST(ScriptRequest, NamesAStatusFileWhereTheProgramMakesThemAndNowhereElse) {
    ASSERT_TRUE(reasonForRequest({"--status", soundStatus, "--all-users"}, ann));
    const std::string folder = "/var/folders/xy/T/kelmar-uninstaller-";
    for (const std::string& other :
         {std::string("/etc/pam.d/sudo"), folder + "/status", "/x" + soundStatus,
          soundStatus + "/status", folder + "0123abcd-4567-4890-ABCD-0123456789AB/status",
          folder + "0123ABCD-4567-4890-ABCD-0123456789A/status",
          folder + "0123ABCD-4567-4890-ABCD-0123456789AB/../status",
          folder + "0123ABCD-4567-4890-ABCD-0123456789AB/other", std::string()}) {
        EXPECT_EQ(reasonForRequest({"--status", other, "--all-users"}, ann), std::nullopt) << other;
    }
    EXPECT_EQ(reasonForRequest({"--all-users", "--status", soundStatus}, ann), std::nullopt);
    EXPECT_EQ(reasonForRequest({"--all-users"}, ann), std::nullopt);
}

TEST(ScriptRequest, AsksForSomethingAndForNothingUnknown) {
    EXPECT_EQ(reasonFor({}), std::nullopt);
    EXPECT_EQ(reasonFor({"--all-users", "--more"}), std::nullopt);
    EXPECT_EQ(reasonFor({"--shared-data"}), std::nullopt);
    EXPECT_EQ(reasonFor({"--shared-data", "/etc"}), std::nullopt);
    EXPECT_EQ(reasonFor({"--started-clean", "--all-users"}), std::nullopt);
}

} // namespace
} // namespace kelmar
