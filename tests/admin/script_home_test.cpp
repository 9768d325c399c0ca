#include "tests/admin/script_fixture.hpp"
#include "tests/support/unremovable.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace kelmar {
namespace {

/// What others own among the files of the user who asks.
class ScriptOnAHome : public test::Script {
protected:
    using Script::Script;

    void SetUp() override {
        if (::getuid() != 0) {
            GTEST_SKIP() << "only root can give a file to another user";
        }
    }
};

TEST_F(ScriptOnAHome, RemovesTheTopmostForeignThingsBelowTheHomeAndNothingOfTheUsers) {
    tree.app(Scope::me, "4").services(Scope::me).agents(Scope::me);
    tree.file(home("/Library/Kelmar/own/foreign/deep")).file(home("/Library/Kelmar/own/kept"));
    tree.file(home("/Library/Kelmar/own/foreign 2")).file(home("/Library/Other/foreign"));
    const std::string worker = tree.paths().agents(Scope::me)[1];
    giveAway(home("/Library/Kelmar/own/foreign"));
    giveAway(home("/Library/Kelmar/own/foreign 2"));
    giveAway(home("/Library/Other/foreign"));
    giveAway(worker);
    const Lines lines = run({"--home", home("")});
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "OK " + home("/Library/Kelmar/own/foreign")),
              1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "OK " + home("/Library/Kelmar/own/foreign 2")),
              1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "OK " + worker), 1);
    EXPECT_EQ(lines.size(), 7U) << "a DOING and an OK each, and DONE";
    EXPECT_FALSE(isThere(home("/Library/Kelmar/own/foreign")));
    EXPECT_FALSE(isThere(home("/Library/Kelmar/own/foreign 2")));
    EXPECT_FALSE(isThere(worker));
    EXPECT_TRUE(isThere(home("/Library/Kelmar/own/kept")));
    EXPECT_TRUE(isThere(tree.paths().agents(Scope::me)[0]));
    EXPECT_TRUE(isThere(home("/Applications/Kelmar.app/Contents/Info.plist")));
    EXPECT_TRUE(isThere(home("/Library/Other/foreign"))) << "no item of Kelmar's";
}

TEST_F(ScriptOnAHome, AnItemThatIsForeignAsAWholeGoesAsAWhole) {
    tree.services(Scope::me);
    giveAway(home("/Library/Kelmar"));
    EXPECT_EQ(run({"--home", home("")}),
              (Lines{"DOING " + home("/Library/Kelmar"), "OK " + home("/Library/Kelmar"), "DONE"}));
}

TEST_F(ScriptOnAHome, OddNamesBelowTheHomeMakeNoLinesOfTheirOwn) {
    const std::string name = home("/Library/Kelmar/-rf x\nOK \tfake\nDONE");
    tree.file(name);
    giveAway(name);
    const std::string shown = home("/Library/Kelmar/-rf x?OK ?fake?DONE");
    EXPECT_EQ(run({"--home", home("")}), (Lines{"DOING " + shown, "OK " + shown, "DONE"}));
    EXPECT_FALSE(isThere(name));
}

TEST_F(ScriptOnAHome, EachForeignThingHasItsOwnLinesAndItsOwnReason) {
    for (const char* const name : {"a", "locked", "z"}) {
        tree.file(home("/Library/Kelmar/" + std::string(name)));
        giveAway(home("/Library/Kelmar/" + std::string(name)));
    }
    const test::Unremovable locked(home("/Library/Kelmar/locked"));
    if (!locked.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    Lines lines = run({"--home", home("")});
    ASSERT_EQ(lines.size(), 7U);
    std::vector<std::pair<std::string, std::string>> pairs;
    for (std::size_t index = 0; index < 6; index += 2) {
        pairs.emplace_back(lines[index], lines[index + 1]);
    }
    std::sort(pairs.begin(), pairs.end());
    const std::string within = home("/Library/Kelmar/");
    EXPECT_EQ(pairs[0], std::pair("DOING " + within + "a", "OK " + within + "a"));
    EXPECT_EQ(pairs[1].first, "DOING " + within + "locked");
    EXPECT_TRUE(pairs[1].second.starts_with("FAIL " + within + "locked\trm: ")) << pairs[1].second;
    EXPECT_TRUE(pairs[1].second.ends_with("Operation not permitted")) << pairs[1].second;
    EXPECT_EQ(pairs[2], std::pair("DOING " + within + "z", "OK " + within + "z"));
}

class ScriptOnALargeHome : public ScriptOnAHome {
protected:
    ScriptOnALargeHome() : ScriptOnAHome(test::TemporaryFolder::Storage::memory) {}
};

TEST_F(ScriptOnALargeHome, ThousandsOfForeignThingsGoOneAfterAnother) {
    constexpr int count = 5000;
    tree.file(home("/Library/Kelmar/own"));
    for (int number = 0; number < count; ++number) {
        const std::string path = home("/Library/Kelmar/" + std::to_string(number));
        std::ofstream(path).close();
        ASSERT_EQ(::lchown(path.c_str(), foreigner, foreigner), 0);
    }
    const Lines lines = run({"--home", home("")});
    ASSERT_EQ(lines.size(), 2U * count + 1);
    for (std::size_t index = 0; index + 1 < lines.size(); index += 2) {
        ASSERT_EQ("OK " + lines[index].substr(6), lines[index + 1]);
    }
    EXPECT_TRUE(isThere(home("/Library/Kelmar/own")));
}

TEST_F(ScriptOnAHome, AnotherPersonsHomeIsRefused) {
    tree.services(Scope::me).file(home("/Library/Kelmar/foreign"));
    giveAway(home("/Library/Kelmar/foreign"));
    giveAway(home("/Library/Kelmar"));
    giveAway(home(""));
    const test::ProgramEnd end =
        runWith({"--status", status, "--home", home(""), "--test-root", tree.paths().systemRoot});
    EXPECT_EQ(end.status, 2);
    EXPECT_EQ(end.error,
              "uninstall-as-admin.sh: --home: not the home folder of the user who asks\n");
    EXPECT_TRUE(isThere(home("/Library/Kelmar/foreign")));
    giveAway(status);
    giveAway(std::filesystem::path(status).parent_path());
    EXPECT_EQ(
        runWith({"--status", status, "--home", home(""), "--test-root", tree.paths().systemRoot})
            .status,
        0)
        << "to its owner it is not";
    EXPECT_TRUE(isThere(home("/Library/Kelmar/foreign"))) << "nor is that foreign to the owner";
}

TEST_F(ScriptOnAHome, APathThatDotsLeadAwayIsNoHome) {
    tree.services(Scope::me).folder(home("/x/y"));
    giveAway(home("/Library/Kelmar"));
    for (const char* const rest :
         {"/.", "/./", "/x/..", "/x/../", "/x/../.", "/x/y/../..", "//x"}) {
        const test::ProgramEnd end = runWith(
            {"--status", status, "--home", home(rest), "--test-root", tree.paths().systemRoot});
        EXPECT_EQ(end.status, 2) << rest;
        EXPECT_EQ(end.error, "uninstall-as-admin.sh: --home: not a person's home folder\n");
        EXPECT_TRUE(isThere(home("/Library/Kelmar"))) << rest;
    }
}

} // namespace
} // namespace kelmar
