#include "tests/admin/bsd_scenario_fixture.hpp"
#include "tests/support/sleeper.hpp"

namespace kelmar {
namespace {

using test::OnABsdUserland;

/// What the tools of one Mac or another do differently.
class OnEveryMac : public OnABsdUserland, public testing::WithParamInterface<const char*> {};

TEST_P(OnEveryMac, EverythingGoesAndNothingElse) {
    userland->setState(GetParam());
    tree().everything().file(outside("/Library/Other/x")).link(outside("/Library/Kelmar/up"), "..");
    tree().file(outside("/Users/ann/Library/Kelmar/own/kept"));
    const std::string odd = "/Users/ann/Library/Kelmar/own/-rf x";
    const std::string agent = "/Users/ann/Library/LaunchAgents/com.kelmar.api.plist";
    tree().file(outside(odd + "/deep"));
    giveHome({odd, agent});
    userland->setState("services/gui:501:com.kelmar.worker");
    userland->setState("receipts/com.kelmar.pkg.backend");
    const test::Sleeper session(outside("/usr/local/bin/session"), test::Sleeper::asUser(user));

    const Lines system{"/Applications/Kelmar.app", "/Library/Kelmar",
                       "/Library/LaunchAgents/com.kelmar.api.plist",
                       "/Library/LaunchAgents/com.kelmar.worker.plist"};
    const Lines shared{"/Users/Shared/@Kelmar/CDN", "/Users/Shared/@Kelmar/Models"};
    Lines gone = system;
    gone.insert(gone.end(), shared.begin(), shared.end());
    gone.insert(gone.end(), {odd, agent});
    const auto expected = without(everything(), gone);

    const test::ProgramEnd end = run({"--all-users", "--shared-data", shared[0], "--shared-data",
                                      shared[1], "--home", "/Users/ann"});
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output + end.error, "");
    Lines lines = removed(gone);
    lines.insert(lines.begin() + 2 * static_cast<std::ptrdiff_t>(system.size()),
                 "LOG Removed the install record com.kelmar.pkg.backend.");
    lines.insert(lines.begin(), "LOG Stopped com.kelmar.worker (user 501).");
    lines.emplace_back("DONE");
    EXPECT_EQ(statusLines(), lines);
    EXPECT_EQ(everything(), expected);
    EXPECT_TRUE(std::filesystem::is_empty(outside("/mnt/state/services")));
    EXPECT_TRUE(std::filesystem::is_empty(outside("/mnt/state/receipts")));
}

TEST_P(OnEveryMac, TheStatusFileIsOpenedWithoutAHomeToLookAt) {
    userland->setState(GetParam());
    tree().services(Scope::allUsers);
    giveHome();
    EXPECT_EQ(run({"--all-users"}).status, 0);
    EXPECT_EQ(statusLines(), (Lines{"DOING /Library/Kelmar", "OK /Library/Kelmar", "DONE"}));
}

INSTANTIATE_TEST_SUITE_P(Macs, OnEveryMac, testing::Values("usual", "extended", "old-ln"),
                         [](const auto& mac) {
                             std::string name = mac.param;
                             std::erase(name, '-');
                             return name;
                         });

TEST_F(OnABsdUserland, WhatRunsFromTheFoldersIsFoundByPsAndStopped) {
    tree().services(Scope::allUsers);
    giveHome();
    // One in a folder with a long name, one that ignores the polite signal, one beside the folders.
    const std::string far = "/Library/Kelmar/" + std::string(150, 'x');
    tree().file(outside("/scenario.sh"),
                R"(for folder in "$1" /Library/Kelmar/bin /Library/Kelmar.other; do
    /mnt/gnu/mkdir -p "$folder"
    /mnt/gnu/cp /mnt/gnu/sleep "$folder/worker"
done
"$1/worker" 60 & polite=$!
(trap '' TERM; exec /Library/Kelmar/bin/worker 60) & stubborn=$!
/Library/Kelmar.other/worker 60 & beside=$!
/mnt/gnu/sleep 0.3
/bin/bash "$2" --status "$3" --all-users
wait "$polite"; echo "$?"
wait "$stubborn"; echo "$?"
kill "$beside" && echo "the third ran"
)");
    const test::ProgramEnd end =
        userland->program("/bin/bash", {"/scenario.sh", far, script, status}).run();
    EXPECT_EQ(end.output, "143\n137\nthe third ran\n") << "by SIGTERM, by SIGKILL; " << end.error;
    EXPECT_EQ(statusLines(), (Lines{"LOG Stopped 2 process(es) of Kelmar for all users.",
                                    "DOING /Library/Kelmar", "OK /Library/Kelmar", "DONE"}));
}

TEST_F(OnABsdUserland, ADiskThatIsMountedInAnItemIsSeen) {
    tree().services(Scope::allUsers).app(Scope::allUsers, "4");
    giveHome();
    userland->mountDisk("/Applications/Kelmar.app/Contents");
    EXPECT_EQ(run({"--all-users"}).status, 0);
    EXPECT_EQ(statusLines(), (Lines{"FAIL /Applications/Kelmar.app\ta disk is mounted inside it",
                                    "DOING /Library/Kelmar", "OK /Library/Kelmar", "DONE"}));
}

TEST_F(OnABsdUserland, ADiskThatIsListedByWayOfItsVolumeIsSeen) {
    tree().services(Scope::allUsers).app(Scope::allUsers, "4");
    giveHome();
    userland->setState("mounts",
                       "/dev/disk4s1 on /System/Volumes/Data/Library/Kelmar/lib (apfs, local)\n"
                       "/dev/disk5 on /System/Volumes/Data/Applications/Kelmar.app (hfs, local)\n");
    EXPECT_EQ(run({"--all-users"}).status, 0);
    EXPECT_EQ(statusLines(), (Lines{"FAIL /Applications/Kelmar.app\ta disk is mounted inside it",
                                    "FAIL /Library/Kelmar\ta disk is mounted inside it", "DONE"}));
}

TEST_F(OnABsdUserland, ADiskBesideAnItemIsNotInIt) {
    tree().services(Scope::allUsers);
    giveHome();
    userland->setState("mounts", "/dev/disk4s1 on /Library/Kelmar.other (apfs, local)\n"
                                 "/dev/disk5 on /System/Volumes/Data (apfs, local)\n");
    EXPECT_EQ(run({"--all-users"}).status, 0);
    EXPECT_EQ(statusLines(), (Lines{"DOING /Library/Kelmar", "OK /Library/Kelmar", "DONE"}));
}

TEST_F(OnABsdUserland, ALinkedStatusFileIsRefusedAlsoWhereLnFollowsIt) {
    userland->setState("old-ln");
    tree().file(outside("/Users/ann/other"));
    std::filesystem::remove(outside(status));
    tree().link(outside(status), "/Users/ann/other");
    giveHome();
    const auto before = everything();
    EXPECT_EQ(run({"--all-users"}).status, 1);
    EXPECT_EQ(everything(), before);
}

} // namespace
} // namespace kelmar
