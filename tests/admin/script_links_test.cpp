#include "tests/admin/script_bait.hpp"

namespace kelmar {
namespace {

using ScriptAndLinks = test::ScriptWithABait;

TEST_F(ScriptAndLinks, ASharedRootThatIsALinkIsNotFollowed) {
    tree.link(system("/Users/Shared/@Kelmar"), bait);
    EXPECT_EQ(run({"--shared-data", shared("Store")}),
              (Lines{throughALink(shared("Store")), "DONE"}));
}

TEST_F(ScriptAndLinks, NorIsALinkFurtherUp) {
    tree.link(system("/Users/Shared"), bait)
        .link(system("/Library"), bait)
        .link(system("/Applications"), bait);
    EXPECT_EQ(
        run({"--all-users", "--shared-data", shared("Store")}),
        (Lines{throughALink(system("/Applications/Kelmar.app")),
               throughALink(system("/Library/Kelmar")), throughALink(shared("Store")), "DONE"}));
}

TEST_F(ScriptAndLinks, ALinkThatStaysInsideTheRootIsStillALink) {
    tree.folder(system("/Elsewhere/Kelmar.app")).link(system("/Applications"), "Elsewhere");
    EXPECT_EQ(run({"--all-users"}),
              (Lines{throughALink(system("/Applications/Kelmar.app")), "DONE"}));
    EXPECT_TRUE(isThere(system("/Elsewhere/Kelmar.app")));
}

TEST_F(ScriptAndLinks, ALinkThatIsTheItemGoesItself) {
    tree.link(system("/Library/Kelmar"), bait).link(shared("Store"), bait + "/Store");
    tree.link(system("/Applications/Kelmar.app"), "nowhere");
    EXPECT_EQ(run({"--all-users", "--shared-data", shared("Store")}),
              (Lines{"DOING " + system("/Applications/Kelmar.app"),
                     "OK " + system("/Applications/Kelmar.app"),
                     "DOING " + system("/Library/Kelmar"), "OK " + system("/Library/Kelmar"),
                     "DOING " + shared("Store"), "OK " + shared("Store"), "DONE"}));
    EXPECT_FALSE(isThere(system("/Library/Kelmar")));
}

TEST_F(ScriptAndLinks, LinksInsideAnItemGoWithoutTheirTargets) {
    tree.services(Scope::allUsers).link(system("/Library/Kelmar/way out"), bait);
    tree.link(system("/Library/Kelmar/lib/up"), "../../..");
    EXPECT_EQ(run({"--all-users"}).back(), "DONE");
    EXPECT_FALSE(isThere(system("/Library/Kelmar")));
}

TEST_F(ScriptAndLinks, ALinkAboveTheTestRootIsFollowed) {
    tree.everything().link(folder / "way", "t");
    const Lines arguments{"--status",
                          status,
                          "--all-users",
                          "--shared-data",
                          folder / "way/system/Users/Shared/@Kelmar/CDN",
                          "--test-root",
                          folder / "way/system"};
    EXPECT_EQ(runWith(arguments).status, 0);
    EXPECT_FALSE(isThere(system("/Library/Kelmar")));
    EXPECT_FALSE(isThere(shared("CDN")));
}

TEST_F(ScriptAndLinks, ALinkedHomeIsAHomeAndALinkInItIsNot) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can give a file to another user";
    }
    tree.services(Scope::me).link(folder / "house", tree.paths().home);
    giveAway(home("/Library/Kelmar/bin"));
    tree.link(home("/Applications"), bait);
    giveAway(bait + "/Kelmar.app");
    before = test::contents(bait);
    const std::string house = folder / "house";
    EXPECT_EQ(run({"--home", house}), (Lines{throughALink(house + "/Applications/Kelmar.app"),
                                             "DOING " + house + "/Library/Kelmar/bin",
                                             "OK " + house + "/Library/Kelmar/bin", "DONE"}));
}

} // namespace
} // namespace kelmar
