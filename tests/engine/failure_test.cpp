#include "admin/current_user_runner.hpp"
#include "admin/password_prompt_runner.hpp"
#include "engine/uninstaller.hpp"
#include "tests/support/mac_tree.hpp"
#include "tests/support/scripted_runner.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <unordered_set>

namespace kelmar {
namespace {

using Failure = Uninstaller::Failure;

TEST(Failure, IsTheSameWhenPathAndReasonAre) {
    EXPECT_EQ((Failure{"/a", "x"}), (Failure{"/a", "x"}));
    EXPECT_NE((Failure{"/a", "x"}), (Failure{"/a", "y"}));
    EXPECT_NE((Failure{"/a", "x"}), (Failure{"/b", "x"}));
}

TEST(Failure, IsOneInASetOfEquals) {
    const std::unordered_set<Failure> set{{"/a", "x"}, {"/a", "x"}, {"/a", "y"}, {"x", "/a"}};
    EXPECT_EQ(set.size(), 3U);
    EXPECT_NE(std::hash<Failure>()({"/a", "x"}), std::hash<Failure>()({"x", "/a"}));
}

TEST(Engine, UnderATestRootUsesTheCurrentUser) {
    const Uninstaller engine(test::pathsUnder("/tmp/t"), {}, {});
    EXPECT_NE(dynamic_cast<CurrentUserRunner*>(engine.administrator.get()), nullptr);
}

TEST(Engine, OnTheRealMachineAsksForThePassword) {
    const Uninstaller engine({"", "/home/ann", "/tmp", {}}, {}, {});
    EXPECT_NE(dynamic_cast<PasswordPromptRunner*>(engine.administrator.get()), nullptr);
}

TEST(Engine, UsesTheRunnerThatItIsGiven) {
    const auto runner = std::make_shared<test::ScriptedRunner>(test::writes(""));
    const Uninstaller engine(test::pathsUnder("/tmp/t"), {}, {}, runner);
    EXPECT_EQ(engine.administrator, runner);
    EXPECT_TRUE(engine.failures.empty());
    EXPECT_TRUE(engine.stoppedServices.empty());
    engine.emit(Uninstaller::Log{"into the void"});
}

} // namespace
} // namespace kelmar
