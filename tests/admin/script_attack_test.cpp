#include "tests/admin/script_fixture.hpp"
#include "tests/support/snapshot.hpp"

#include <atomic>
#include <cstdio>
#include <thread>

#include <fcntl.h>
#include <linux/fs.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>

namespace kelmar {
namespace {

/// Links where an ordinary user can put them, and a bait behind them that must never be touched.
class ScriptUnderAttack : public test::Script {
protected:
    void SetUp() override {
        tree.file(bait + "/Kelmar/precious", "bait").file(bait + "/Store/precious", "bait");
        tree.file(bait + "/@Kelmar/Store/precious", "bait")
            .file(bait + "/Kelmar.app/precious", "bait");
        tree.file(bait + "/com.kelmar.api.plist", "bait").file(bait + "/bin/precious", "bait");
        before = test::contents(bait);
    }

    void TearDown() override { EXPECT_EQ(test::contents(bait), before) << "the bait was touched"; }

    [[nodiscard]] static std::string throughALink(const std::string& path) {
        return "FAIL " + path + "\tit is reached through a link";
    }

    std::string bait = folder / "bait";
    std::map<std::string, std::string> before;
};

TEST_F(ScriptUnderAttack, ASharedRootThatIsALinkIsNotFollowed) {
    tree.link(system("/Users/Shared/@Kelmar"), bait);
    EXPECT_EQ(run({"--shared-data", shared("Store")}),
              (Lines{throughALink(shared("Store")), "DONE"}));
}

TEST_F(ScriptUnderAttack, NorIsALinkFurtherUp) {
    tree.link(system("/Users/Shared"), bait)
        .link(system("/Library"), bait)
        .link(system("/Applications"), bait);
    EXPECT_EQ(
        run({"--all-users", "--shared-data", shared("Store")}),
        (Lines{throughALink(system("/Applications/Kelmar.app")),
               throughALink(system("/Library/Kelmar")), throughALink(shared("Store")), "DONE"}));
}

TEST_F(ScriptUnderAttack, ALinkThatStaysInsideTheRootIsStillALink) {
    tree.folder(system("/Elsewhere/Kelmar.app")).link(system("/Applications"), "Elsewhere");
    EXPECT_EQ(run({"--all-users"}),
              (Lines{throughALink(system("/Applications/Kelmar.app")), "DONE"}));
    EXPECT_TRUE(isThere(system("/Elsewhere/Kelmar.app")));
}

TEST_F(ScriptUnderAttack, ALinkThatIsTheItemGoesItself) {
    tree.link(system("/Library/Kelmar"), bait).link(shared("Store"), bait + "/Store");
    tree.link(system("/Applications/Kelmar.app"), "nowhere");
    EXPECT_EQ(run({"--all-users", "--shared-data", shared("Store")}),
              (Lines{"DOING " + system("/Applications/Kelmar.app"),
                     "OK " + system("/Applications/Kelmar.app"),
                     "DOING " + system("/Library/Kelmar"), "OK " + system("/Library/Kelmar"),
                     "DOING " + shared("Store"), "OK " + shared("Store"), "DONE"}));
    EXPECT_FALSE(isThere(system("/Library/Kelmar")));
}

TEST_F(ScriptUnderAttack, LinksInsideAnItemGoWithoutTheirTargets) {
    tree.services(Scope::allUsers).link(system("/Library/Kelmar/way out"), bait);
    tree.link(system("/Library/Kelmar/lib/up"), "../../..");
    EXPECT_EQ(run({"--all-users"}).back(), "DONE");
    EXPECT_FALSE(isThere(system("/Library/Kelmar")));
}

TEST_F(ScriptUnderAttack, ALinkAboveTheRootIsNobodysAttack) {
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

TEST_F(ScriptUnderAttack, ALinkedHomeIsAHomeAndALinkInItIsNot) {
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

/// Puts a link to the bait in a folder's place and back, as fast as one thread can.
class Swapper {
public:
    Swapper(std::string place, const std::string& target) : place_(std::move(place)) {
        std::filesystem::create_symlink(target, place_ + ".link");
        thread_ = std::thread([this] {
            const std::string link = place_ + ".link";
            while (!enough_) {
                // renameat2(2): the two change places in one step, so that there is always one of
                // them.
                ::syscall(SYS_renameat2, AT_FDCWD, place_.c_str(), AT_FDCWD, link.c_str(),
                          RENAME_EXCHANGE);
                ++swaps_;
            }
        });
    }

    Swapper(const Swapper&) = delete;
    Swapper& operator=(const Swapper&) = delete;

    ~Swapper() {
        enough_ = true;
        thread_.join();
    }

    [[nodiscard]] long swaps() const { return swaps_; }

private:
    std::string place_;
    std::atomic<bool> enough_{false};
    std::atomic<long> swaps_{0};
    std::thread thread_;
};

constexpr int rounds = 200;

TEST_F(ScriptUnderAttack, AFolderSwappedForALinkWhileItRunsLeadsNowhere) {
    tree.folder(system("/Users/Shared/@Kelmar")).folder(system("/Library"));
    const Swapper sharedRoot(system("/Users/Shared/@Kelmar"), bait);
    const Swapper library(system("/Library"), bait);
    for (int round = 0; round < rounds; ++round) {
        // The attacker puts something to delete into the real folders, whichever name they bear
        // just now.
        for (const char* const name :
             {"/Users/Shared/@Kelmar/Store", "/Users/Shared/@Kelmar.link/Store", "/Library/Kelmar",
              "/Library.link/Kelmar"}) {
            std::error_code ignored;
            std::filesystem::create_directory(system(name), ignored);
        }
        const test::ProgramEnd end =
            runWith({"--status", status, "--all-users", "--shared-data", shared("Store"),
                     "--test-root", tree.paths().systemRoot});
        ASSERT_EQ(end.status, 0) << end.error;
        ASSERT_EQ(test::contents(bait), before) << "in round " << round;
    }
    EXPECT_GT(sharedRoot.swaps(), rounds);
    EXPECT_GT(library.swaps(), rounds);
}

TEST_F(ScriptUnderAttack, NorDoesOneSwappedInsideTheHome) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can give a file to another user";
    }
    for (const char* const foreign : {"/bin", "/bin/precious", "/Kelmar", "/Kelmar/precious"}) {
        giveAway(bait + foreign);
    }
    before = test::contents(bait);
    tree.folder(home("/Library/Kelmar/bin"));
    const Swapper inner(home("/Library/Kelmar/bin"), bait + "/bin");
    const Swapper outer(home("/Library"), bait);
    for (int round = 0; round < rounds; ++round) {
        const test::ProgramEnd end = runWith(
            {"--status", status, "--home", home(""), "--test-root", tree.paths().systemRoot});
        ASSERT_EQ(end.status, 0) << end.error;
        ASSERT_EQ(test::contents(bait), before) << "in round " << round;
    }
    EXPECT_GT(inner.swaps(), rounds);
    EXPECT_GT(outer.swaps(), rounds);
}

TEST_F(ScriptUnderAttack, AStatusFileSwappedForALinkIsNotWrittenThrough) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can run the script for another user";
    }
    const std::string systemFile = bait + "/Kelmar/precious";
    std::filesystem::permissions(systemFile, std::filesystem::perms(0600));
    before = test::contents(bait);
    const std::string place = std::filesystem::path(status).parent_path();
    giveAway(place);
    for (const std::string& target : {systemFile, bait + "/made by root"}) {
        std::filesystem::remove(status);
        std::filesystem::remove(status + ".link");
        tree.file(status);
        giveAway(status);
        const Swapper swapper(status, target);
        int written = 0;
        for (int round = 0; round < rounds; ++round) {
            const test::ProgramEnd end = runWith({"--status", status, "--shared-data",
                                                  shared("nothing"), "--test-root", system("")});
            ASSERT_TRUE(end.status == 0 || end.status == 1) << end.error;
            written += end.status == 0 ? 1 : 0;
            ASSERT_EQ(test::contents(bait), before) << "in round " << round;
        }
        EXPECT_GT(swapper.swaps(), rounds);
        EXPECT_GT(written, 0) << "some came through";
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(place), {}), 2)
        << "nothing but the status file and the link are left in its folder";
}

TEST_F(ScriptUnderAttack, TheFolderThatItLooksInIsNotSwappedForAnotherEither) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can run the script for another user";
    }
    // A folder of root's in which a file bears the very name that the script uses and takes away
    // again.
    tree.file(bait + "/root's/status", "precious");
    std::filesystem::permissions(bait + "/root's", std::filesystem::perms(0700));
    before = test::contents(bait);
    const std::string place = std::filesystem::path(status).parent_path();
    giveAway(place);
    giveAway(status);
    std::atomic<bool> enough{false};
    std::atomic<long> swaps{0};
    std::thread attacker([&] {
        while (!enough) {
            std::error_code ignored;
            for (const auto& entry : std::filesystem::directory_iterator(place, ignored)) {
                const std::string path = entry.path();
                if (path.find("/.kelmar-") != std::string::npos && !path.ends_with(".away")) {
                    std::filesystem::rename(path, path + ".away", ignored);
                    std::filesystem::create_symlink(bait + "/root's", path, ignored);
                    swaps += ignored ? 0 : 1;
                }
            }
        }
    });
    for (int round = 0; round < rounds; ++round) {
        static_cast<void>(runWith(
            {"--status", status, "--shared-data", shared("nothing"), "--test-root", system("")}));
        if (test::contents(bait) != before) {
            break; // told of below, once the attacker has stopped
        }
    }
    enough = true;
    attacker.join();
    EXPECT_EQ(test::contents(bait), before);
    EXPECT_GT(swaps, 0);
}

TEST_F(ScriptUnderAttack, WithoutATestRootNothingIsDoneForRoot) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "what root is refused can only be seen as root";
    }
    // Even if this went on, there is no such folder.
    const test::ProgramEnd end =
        runWith({"--status", status, "--shared-data", "/Users/Shared/@Kelmar/none"});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.error,
              "uninstall-as-admin.sh: the status file is not a plain file of the user\n");
    EXPECT_EQ(statusLines(), Lines{});
}

TEST_F(ScriptUnderAttack, ADiskMountedInsideAnItemIsNotEmptied) {
    if (::getuid() != 0) {
        GTEST_SKIP() << "only root can mount something";
    }
    tree.services(Scope::allUsers).folder(system("/Library/Kelmar/disk")).services(Scope::me);
    tree.folder(home("/Library/Kelmar/lib/disk"));
    test::Program program;
    program.path = "/bin/bash";
    program.arguments = {KELMAR_SCRIPT, "--status", status,        "--all-users",
                         "--home",      home(""),   "--test-root", tree.paths().systemRoot};
    const std::vector<std::string> places{system("/Library/Kelmar/disk"),
                                          home("/Library/Kelmar/lib/disk")};
    program.inChild = [this, places] {
        bool mounted = ::unshare(CLONE_NEWNS) == 0 &&
                       ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        for (const std::string& place : places) {
            mounted =
                mounted && ::mount(bait.c_str(), place.c_str(), nullptr, MS_BIND, nullptr) == 0;
        }
        if (!mounted) {
            ::_exit(99);
        }
    };
    const test::ProgramEnd end = program.run();
    if (end.status == 99) {
        GTEST_SKIP() << "this machine lets nobody mount anything";
    }
    EXPECT_EQ(end.status, 0) << end.error;
    EXPECT_EQ(statusLines(),
              (Lines{"FAIL " + system("/Library/Kelmar") + "\ta disk is mounted inside it",
                     "FAIL " + home("/Library/Kelmar") + "\ta disk is mounted inside it", "DONE"}));
}

} // namespace
} // namespace kelmar
