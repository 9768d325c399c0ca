#include "tests/admin/script_bait.hpp"
#include "tests/support/swapper.hpp"

#include <iterator>

#include <sys/stat.h>

namespace kelmar {
namespace {

using test::races;
using test::Swapper;

/// Ordinary users who exchange their folders and files for links while root works in them. What
/// they hope for depends on luck: `races` says how often they try. In memory they try no less
/// often while root works, and their next folders are there sooner.
class ScriptRaces : public test::ScriptWithABait {
protected:
    ScriptRaces() : ScriptWithABait(test::TemporaryFolder::Storage::memory) {}

    void SetUp() override {
        if (::getuid() != 0) {
            GTEST_SKIP() << "only root can run the script for another user";
        }
        ScriptWithABait::SetUp();
        std::filesystem::permissions(bait, std::filesystem::perms(0700));
        before = test::contents(bait);
    }

    /// Forty folders of the same few files in `item`, and for each of them a link to the bait.
    std::vector<Swapper::Pair> fill(const std::string& item, const std::string& foreignFile) {
        std::vector<Swapper::Pair> pairs;
        for (int number = 10; number < 50; ++number) {
            const std::string name = "/folder " + std::to_string(number);
            for (const char* const file : {"/one", "/precious", "/three", "/four", "/five"}) {
                tree.file(item + name + file);
            }
            if (!foreignFile.empty()) {
                tree.file(item + name + foreignFile);
                giveAway(item + name + foreignFile);
            }
            tree.link(item + ".links" + name, bait + "/bin");
            pairs.emplace_back(item + name, item + ".links" + name);
        }
        return pairs;
    }

    [[nodiscard]] Lines runWhile(const std::vector<Swapper::Pair>& swapped,
                                 const Lines& arguments) const {
        const Swapper swapper(swapped);
        while (swapper.swaps() < 1) {
            std::this_thread::yield();
        }
        return run(arguments);
    }
};

TEST_F(ScriptRaces, FoldersSwappedInsideSharedDataLeadNowhere) {
    const std::string item = shared("Store");
    for (int race = 0; race < races(); ++race) {
        const auto pairs = fill(item, "");
        const Lines lines = runWhile(pairs, {"--shared-data", item});
        ASSERT_EQ(test::contents(bait), before) << "in race " << race;
        EXPECT_EQ(lines.back(), "DONE");
        std::filesystem::remove_all(item);
        std::filesystem::remove_all(item + ".links");
    }
}

TEST_F(ScriptRaces, FoldersSwappedInsideTheHomeLeadNowhere) {
    // What lies in the bait is foreign to the one who asks, too.
    giveAway(bait + "/bin/precious");
    before = test::contents(bait);
    const std::string item = home("/Library/Kelmar");
    for (int race = 0; race < races(); ++race) {
        const auto pairs = fill(item, "/foreign");
        const Lines lines = runWhile(pairs, {"--home", home("")});
        ASSERT_EQ(test::contents(bait), before) << "in race " << race;
        EXPECT_EQ(lines.back(), "DONE");
        std::filesystem::remove_all(item);
        std::filesystem::remove_all(item + ".links");
    }
}

TEST_F(ScriptRaces, FoldersSwappedAboveAnItemLeadNowhere) {
    tree.folder(system("/Users/Shared/@Kelmar")).folder(system("/Library"));
    tree.link(system("/Users/Shared/link"), bait).link(system("/link"), bait);
    const Swapper swapper({{system("/Users/Shared/@Kelmar"), system("/Users/Shared/link")},
                           {system("/Library"), system("/link")}});
    for (int race = 0; race < races(); ++race) {
        // The attacker puts something to delete into the real folders, whichever name they bear
        // just now.
        for (const char* const name : {"/Users/Shared/@Kelmar/Store", "/Users/Shared/link/Store",
                                       "/Library/Kelmar", "/link/Kelmar"}) {
            std::error_code ignored;
            std::filesystem::create_directory(system(name), ignored);
        }
        EXPECT_EQ(run({"--all-users", "--shared-data", shared("Store")}).back(), "DONE");
        ASSERT_EQ(test::contents(bait), before) << "in race " << race;
    }
    EXPECT_GT(swapper.swaps(), races());
}

/// The status file lies in a folder of the user's, who swaps what he likes while root is at it.
class ScriptStatusRaces : public ScriptRaces {
protected:
    void SetUp() override {
        ScriptRaces::SetUp();
        if (IsSkipped()) {
            return;
        }
        precious = bait + "/Kelmar/precious";
        std::filesystem::permissions(precious, std::filesystem::perms(0600));
        before = test::contents(bait);
        giveAway(place);
        giveAway(status);
    }

    /// Runs the script against the swapper of these two until it was refused and came through often
    /// enough for both to be seen.
    void race(const Swapper::Pair& pair) {
        const Swapper swapper({pair});
        for (int race = 0; race < races(); ++race) {
            const test::ProgramEnd end = runWith({"--status", status, "--shared-data",
                                                  shared("nothing"), "--test-root", system("")});
            ASSERT_TRUE(end.status == 0 || end.status == 1) << end.error;
            ASSERT_EQ(test::contents(bait), before) << "in race " << race;
        }
        EXPECT_GT(swapper.swaps(), races());
    }

    std::string place = std::filesystem::path(status).parent_path();
    std::string precious;
};

TEST_F(ScriptStatusRaces, AFileSwappedForALinkIsNotWrittenThrough) {
    tree.link(status + ".link", precious);
    race({status, status + ".link"});
}

TEST_F(ScriptStatusRaces, NorIsAnyMadeByWayOfALink) {
    tree.link(status + ".link", bait + "/made by root");
    race({status, status + ".link"});
}

TEST_F(ScriptStatusRaces, AFileSwappedForAnotherNameOfRootsIsNotWritten) {
    std::filesystem::create_hard_link(precious, status + ".twin");
    race({status, status + ".twin"});
    std::filesystem::remove(status + ".twin");
}

} // namespace
} // namespace kelmar
