#include "tests/admin/bsd_scenario_fixture.hpp"

namespace kelmar {
namespace {

/// A folder of the user's whose access control list comes down to every folder made in it: the
/// user may then write in the script's own folder too, which it makes there to look at the status
/// file.
class OnAnAccessList : public test::OnABsdUserland {
protected:
    void SetUp() override {
        OnABsdUserland::SetUp();
        if (userland == nullptr) {
            return;
        }
        std::filesystem::create_directory(outside("/mnt/state/acl"));
        tree().services(Scope::allUsers);
        giveHome();
    }

    void expectNothingDone(const std::map<std::string, std::string>& before) const {
        const test::ProgramEnd end = run({"--all-users"});
        EXPECT_EQ(end.status, 1);
        EXPECT_EQ(end.error, "uninstall-as-admin.sh: the status file cannot be looked at\n");
        const auto after = everything();
        for (const auto& [path, what] : before) {
            EXPECT_EQ(after.count(path), 1U) << path;
        }
        EXPECT_EQ(after.at("/etc-like/secret"), before.at("/etc-like/secret"));
    }
};

TEST_F(OnAnAccessList, TheFileThatWasLookedAtIsTheOneThatIsWritten) {
    // Between the look and the opening.
    userland->setState("after-ls", "/mnt/gnu/ln -sf /etc-like/secret ./status\n");
    const auto expected = without(everything(), {"/Library/Kelmar"});
    EXPECT_EQ(run({"--all-users"}).status, 0);
    EXPECT_EQ(everything(), expected);
    EXPECT_EQ(statusLines(), (Lines{"DOING /Library/Kelmar", "OK /Library/Kelmar", "DONE"}));
}

TEST_F(OnAnAccessList, NothingThatWasPutThereBeforeIsUsed) {
    // A folder in the place of the second name, which ln(1) would put it into.
    userland->setState("after-mkdir", "/mnt/gnu/ln -s /etc-like \"$1/status\"\n");
    expectNothingDone(everything());
    EXPECT_FALSE(std::filesystem::exists(outside("/etc-like/status")));
}

TEST_F(OnAnAccessList, AListThatCannotBeTakenAwayIsTheEnd) {
    userland->setState("no-chmod");
    expectNothingDone(everything());
}

} // namespace
} // namespace kelmar
