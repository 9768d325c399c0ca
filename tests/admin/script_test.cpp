#include "discovery/identifiers.hpp"
#include "discovery/inventory.hpp"
#include "discovery/scanner.hpp"
#include "tests/admin/script_fixture.hpp"
#include "tests/support/snapshot.hpp"
#include "tests/support/unremovable.hpp"

#include <fstream>
#include <sstream>

#include <fcntl.h>

namespace kelmar {
namespace {

using test::Script;

std::string scriptText() {
    std::ostringstream text;
    text << std::ifstream(KELMAR_SCRIPT).rdbuf();
    return text.str();
}

TEST(ScriptText, KnowsTheSameNamesAsTheScanner) {
    std::string folders;
    for (const DataFolder::Known& known : DataFolder::known) {
        folders += (folders.empty() ? "" : " ") + std::string(known.name);
    }
    const std::string text = scriptText();
    for (const std::string& line : {"readonly data_folders=(" + folders + ")",
                                    "readonly agents=(" + std::string(apiAgentLabel) + " " +
                                        std::string(workerAgentLabel) + ")",
                                    "readonly receipts=(" + std::string(appPackageIdentifier) +
                                        " " + std::string(backendIdentifier) + ")"}) {
        EXPECT_NE(text.find("\n" + line + "\n"), std::string::npos) << line;
    }
}

TEST_F(Script, RemovesWhatTheScannerFindsForAllUsers) {
    tree.everything();
    const std::vector<std::string> found =
        Scanner::installation(Scope::allUsers, tree.paths()).paths();
    Lines expected;
    for (const std::string& path : found) {
        expected.push_back("DOING " + path);
        expected.push_back("OK " + path);
    }
    expected.emplace_back("DONE");
    EXPECT_EQ(found.size(), 4U);
    EXPECT_EQ(run({"--all-users"}), expected);
    EXPECT_TRUE(Scanner::installation(Scope::allUsers, tree.paths()).paths().empty());
}

TEST_F(Script, TouchesNothingElse) {
    tree.everything();
    const auto homeBefore = test::contents(tree.paths().home);
    const auto sharedBefore = test::contents(tree.paths().dataRoot(Scope::allUsers));
    EXPECT_EQ(run({"--all-users"}).back(), "DONE");
    EXPECT_EQ(test::contents(tree.paths().home), homeBefore);
    EXPECT_EQ(test::contents(tree.paths().dataRoot(Scope::allUsers)), sharedBefore);
}

TEST_F(Script, WithNothingThereSaysOnlyDone) {
    EXPECT_EQ(run({"--all-users"}), Lines{"DONE"});
    EXPECT_EQ(
        runWith({"--status", status, "--all-users", "--test-root", folder / "missing"}).status, 0);
    EXPECT_EQ(statusLines(), (Lines{"DONE", "DONE"})) << "and appends";
}

TEST_F(Script, DeletesTheSharedFoldersThatAreNamedAndNoOthers) {
    tree.everything();
    EXPECT_EQ(run({"--shared-data", shared("CDN"), "--shared-data", shared("Models")}),
              (Lines{"DOING " + shared("CDN"), "OK " + shared("CDN"), "DOING " + shared("Models"),
                     "OK " + shared("Models"), "DONE"}));
    EXPECT_TRUE(isThere(shared("CDN_remote")));
    EXPECT_TRUE(isThere(shared("Staging")));
    EXPECT_TRUE(isThere(system("/Applications/Kelmar.app")));
}

TEST_F(Script, AnyOtherFolderIsNotSharedData) {
    tree.everything().otherItem(Scope::allUsers, "mine").file(system("/Library/Other/x"));
    const auto before = test::contents(folder / "t/system");
    for (const std::string& path :
         {std::string("/"), std::string("/etc"), shared("mine"), shared("CDN/.."),
          shared("../@Kelmar/CDN"), shared("cdn"), shared("CDN/"), shared("/CDN"),
          shared("CDN/part-0"), shared(""), shared("."), system("/Library/Other"),
          home("/Kelmar/Store"), std::string("/Users/Shared/@Kelmar/CDN")}) {
        std::ofstream(status).close();
        EXPECT_EQ(
            run({"--shared-data", path}),
            (Lines{"FAIL " + path + "\tit is not one of the shared Kelmar data folders", "DONE"}));
    }
    EXPECT_EQ(test::contents(folder / "t/system"), before);
}

TEST_F(Script, WhatCannotBeRemovedFailsInRmsWords) {
    tree.everything();
    const test::Unremovable locked(system("/Library/Kelmar/lib/models.conf"));
    if (!locked.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    const Lines lines = run({"--all-users"});
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(lines[2], "DOING " + system("/Library/Kelmar"));
    EXPECT_TRUE(lines[3].starts_with("FAIL " + system("/Library/Kelmar") + "\trm: ")) << lines[3];
    EXPECT_TRUE(lines[3].ends_with("Operation not permitted")) << lines[3];
    EXPECT_EQ(lines[5], "OK " + tree.paths().agents(Scope::allUsers)[0]) << "and the rest goes on";
    EXPECT_EQ(lines.back(), "DONE");
}

TEST_F(Script, AFullDiskLosesTheLinesAndNotTheWork) {
    tree.everything();
    test::Program program;
    program.path = "/bin/bash";
    // "ulimit -f 0" makes every write to a file fail, and the signal of it is ignored, as on a full
    // disk.
    program.arguments = {"-c",
                         "trap '' XFSZ; ulimit -f 0; exec /bin/bash \"$@\"",
                         "bash",
                         KELMAR_SCRIPT,
                         "--status",
                         status,
                         "--all-users",
                         "--test-root",
                         tree.paths().systemRoot};
    const test::ProgramEnd end = program.run();
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(statusLines(), Lines{});
    EXPECT_TRUE(Scanner::installation(Scope::allUsers, tree.paths()).paths().empty());
}

TEST_F(Script, TheCallersEnvironmentDecidesNothing) {
    tree.everything();
    tree.file(folder / "evil/rm", "#!/bin/sh\ntouch " + (folder / "trapped") + "\n");
    tree.file(folder / "evil/startup", "touch " + (folder / "trapped") + "\n");
    std::filesystem::permissions(folder / "evil/rm", std::filesystem::perms(0755));
    const std::string trap = "() { touch " + (folder / "trapped") + "; }";
    const std::map<std::string, std::optional<std::string>> all{{"PATH", folder / "evil"},
                                                                {"IFS", "/"},
                                                                {"CDPATH", folder / "evil"},
                                                                {"ENV", folder / "evil/startup"},
                                                                {"GLOBIGNORE", "*"},
                                                                {"LC_ALL", "tr_TR.UTF-8"},
                                                                {"TIME_STYLE", "bad"},
                                                                {"FUNCNEST", "1"},
                                                                {"BASH_FUNC_rm%%", trap},
                                                                {"BASH_FUNC_set%%", trap},
                                                                {"BASH_FUNC_cd%%", trap},
                                                                {"BASH_FUNC_exec%%", trap},
                                                                {"BASH_FUNC_rm()", trap},
                                                                {"BASH_FUNC_exec()", trap},
                                                                {"rm", trap},
                                                                {"exec", trap}};
    auto privileged = all; // the shell takes in nothing then, and looks as if it had been told so
    privileged["SHELLOPTS"] = "privileged";
    const std::map<std::string, std::optional<std::string>> posix{{"POSIXLY_CORRECT", "1"},
                                                                  {"ENV", folder / "evil/startup"}};
    for (const auto& environment : {all, privileged, posix}) {
        tree.everything();
        test::Program program;
        program.path = "/bin/bash";
        program.arguments = {KELMAR_SCRIPT, "--status",    status,
                             "--all-users", "--test-root", tree.paths().systemRoot};
        program.environment = environment;
        EXPECT_EQ(program.run().status, 0);
        EXPECT_FALSE(isThere(folder / "trapped"));
        EXPECT_TRUE(Scanner::installation(Scope::allUsers, tree.paths()).paths().empty());
    }
}

} // namespace
} // namespace kelmar
