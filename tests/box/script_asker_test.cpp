#include "tests/box/script_fixture.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/support/swapper.hpp"

namespace kelmar {
namespace {

/// Root trusts only sudo to say who asks.
class ScriptAndAsker : public test::ScriptOnAPretendMac {
protected:
    void SetUp() override {
        ScriptOnAPretendMac::SetUp();
        if (!IsSkipped()) {
            installEverything();
            box->tree().file(box->outside("/Users/bob/Library/Kelmar/bin/worker"));
            giveToSomebodyElse("/Users/bob");
        }
    }

    /// The script exits with this status and message, and has touched nothing.
    void expectRefusal(const test::Program& program, int exitStatus, const std::string& words) {
        const auto before = test::contents(box->outside("/Users"));
        const test::ProgramEnd end = program.run();
        EXPECT_EQ(end.status, exitStatus);
        EXPECT_EQ(end.error, "uninstall-as-admin.sh: " + words + "\n");
        EXPECT_EQ(test::contents(box->outside("/Users")), before);
        EXPECT_TRUE(isThere("/Library/Kelmar"));
        EXPECT_EQ(test::linesOfFile(box->outside(status)), Lines{});
    }

    const std::string noPlainFile = "the status file is not a plain file of the user";
    const std::string noOwnHome = "--home: not the home folder of the user who asks";
};

TEST_F(ScriptAndAsker, AStatusFileOfSomebodyElseIsRefused) {
    giveToSomebodyElse(status);
    expectRefusal(script({"--all-users"}), 1, noPlainFile);
    giveToSomebodyElse(place);
    expectRefusal(script({"--all-users"}), 1, noPlainFile);
}

TEST_F(ScriptAndAsker, AStatusFileOfRootsIsRefused) {
    for (const std::string& path : {status, place}) {
        ASSERT_EQ(::lchown(box->outside(path).c_str(), 0, 0), 0);
    }
    test::Program program = script({"--all-users"});
    expectRefusal(program, 1, noPlainFile);
    program.environment["SUDO_UID"] = std::nullopt;
    expectRefusal(program, 1, noPlainFile);
}

TEST_F(ScriptAndAsker, WithoutSudoTheOwnerOfTheStatusFileAsks) {
    test::Program program = script({"--home", "/Users/ann"});
    program.environment["SUDO_UID"] = std::nullopt;
    EXPECT_EQ(program.run().status, 0);
    EXPECT_EQ(test::linesOfFile(box->outside(status)).back(), "DONE");
}

TEST_F(ScriptAndAsker, AnothersHomeIsRefusedByWhateverName) {
    expectRefusal(script({"--home", "/Users/bob"}), 2, noOwnHome);
    expectRefusal(script({"--home", "/Users"}), 2, noOwnHome);
    box->tree().link(box->outside("/box/tmp/link"), "/Users/bob");
    expectRefusal(script({"--home", "/box/tmp/link"}), 2, noOwnHome);
}

TEST_F(ScriptAndAsker, AHomeBehindALinkLosesNothing) {
    box->tree().link(box->outside("/box/tmp/link"), "/Users/ann");
    const std::string foreign = "/Users/ann/Library/Kelmar/bin/foreign";
    box->tree().file(box->outside(foreign));
    const Lines lines = run({"--home", "/box/tmp/link"});
    EXPECT_EQ(lines.front(),
              "FAIL /box/tmp/link/Applications/Kelmar.app\tit is reached through a link");
    EXPECT_TRUE(isThere(foreign));
}

TEST_F(ScriptAndAsker, AFolderSwappedForAnothersGetsNoLine) {
    const std::string bait = box->outside("/box/bait");
    box->tree().file(bait + "/status", "precious");
    std::filesystem::permissions(bait, std::filesystem::perms(0700));
    box->tree().link(box->outside("/box/tmp/link"), "/box/bait");
    const auto before = test::contents(bait);
    const test::Swapper swapper({{box->outside(place), box->outside("/box/tmp/link")}});
    for (int race = 0; race < test::races(); ++race) {
        const test::ProgramEnd end =
            script({"--shared-data", "/Users/Shared/@Kelmar/Models"}).run();
        ASSERT_TRUE(end.status == 0 || end.status == 1) << end.error;
        ASSERT_EQ(test::contents(bait), before) << "in race " << race;
    }
    EXPECT_GT(swapper.swaps(), test::races());
}

} // namespace
} // namespace kelmar
