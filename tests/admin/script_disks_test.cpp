#include "tests/admin/script_bait.hpp"
#include "tests/support/can_be_constructed.hpp"
#include "tests/support/private_mounts.hpp"
#include "tests/support/silent_file_system.hpp"

#include <fstream>
#include <memory>
#include <sstream>
#include <thread>

namespace kelmar {
namespace {

/// Disks where nobody expects one.
class ScriptAndDisks : public test::ScriptWithABait {
protected:
    void SetUp() override {
        if (::getuid() != 0) {
            GTEST_SKIP() << "only root can mount something";
        }
        if (!test::canBeConstructed<test::PrivateMounts>()) {
            GTEST_SKIP() << "this machine lets nobody mount anything";
        }
        ScriptWithABait::SetUp();
        tree.services(Scope::allUsers).folder(disk);
        mounts = std::make_unique<test::PrivateMounts>();
    }

    /// Lets mount(8) be a program that prints `text` and then does what `script` says.
    void replaceMount(const std::string& text, const std::string& script) {
        tree.file(folder / "list", text);
        tree.file(folder / "mount", "#!/bin/sh\ncat '" + (folder / "list") + "'\n" + script);
        std::filesystem::permissions(folder / "mount", std::filesystem::perms(0755));
        mounts->bind(folder / "mount", "/usr/bin/mount");
    }

    static std::string scriptWithPatience(int seconds) {
        std::ostringstream text;
        text << std::ifstream(KELMAR_SCRIPT).rdbuf();
        std::string script = text.str();
        const std::string patience = "readonly patience=7200";
        const std::size_t at = script.find(patience);
        EXPECT_NE(at, std::string::npos);
        return script.replace(at, patience.size(), "readonly patience=" + std::to_string(seconds));
    }

    [[nodiscard]] static std::string mountedInside(const std::string& path) {
        return "FAIL " + path + "\ta disk is mounted inside it";
    }

    static constexpr const char* nothingMounted = "/dev/disk1 on / (apfs, local)\n";

    std::string disk = system("/Library/Kelmar/disk");
    std::unique_ptr<test::PrivateMounts> mounts;
};

TEST_F(ScriptAndDisks, OneMountedInsideAnItemIsNotEmptied) {
    tree.services(Scope::me).folder(home("/Library/Kelmar/lib/disk"));
    mounts->bind(bait, disk);
    mounts->bind(bait, home("/Library/Kelmar/lib/disk"));
    EXPECT_EQ(run({"--all-users", "--home", home("")}),
              (Lines{mountedInside(system("/Library/Kelmar")),
                     mountedInside(home("/Library/Kelmar")), "DONE"}));
}

TEST_F(ScriptAndDisks, NorIsOneMountedAfterTheListWasRead) {
    mounts->add("tmpfs", folder / "other disk", "");
    tree.file(folder / "other disk/precious", "bait");
    // The list waits until the disk is mounted.
    replaceMount(nothingMounted, "touch '" + (folder / "asked") + "'\nuntil [ -e '" +
                                     (folder / "mounted") + "' ]; do sleep 0.01; done\n");
    // Mounts belong to the process here, whichever thread makes them.
    Lines lines;
    std::thread script([&] { lines = run({"--all-users"}); });
    while (!isThere(folder / "asked")) {
        std::this_thread::yield();
    }
    mounts->bind(folder / "other disk", disk);
    tree.file(folder / "mounted");
    script.join();
    EXPECT_EQ(lines, (Lines{"DOING " + system("/Library/Kelmar"),
                            mountedInside(system("/Library/Kelmar")), "DONE"}));
    EXPECT_TRUE(isThere(disk + "/precious"));
}

TEST_F(ScriptAndDisks, AListThatIsEmptyIsNone) {
    replaceMount("", "");
    EXPECT_EQ(run({"--all-users"}),
              (Lines{"FAIL " + system("/Library/Kelmar") + "\tthe mounted disks cannot be listed",
                     "DONE"}));
}

TEST_F(ScriptAndDisks, OneThatNeverAnswersIsNotAskedWhenItIsListed) {
    const test::SilentFileSystem silent(*mounts, disk);
    if (!silent.works()) {
        GTEST_SKIP() << test::SilentFileSystem::skipReason;
    }
    EXPECT_EQ(run({"--all-users"}), (Lines{mountedInside(system("/Library/Kelmar")), "DONE"}));
}

TEST_F(ScriptAndDisks, OneThatNeverAnswersHoldsRootForATimeOnly) {
    const test::SilentFileSystem silent(*mounts, disk);
    if (!silent.works()) {
        GTEST_SKIP() << test::SilentFileSystem::skipReason;
    }
    replaceMount(nothingMounted, "");
    tree.agents(Scope::allUsers).file(folder / "script", scriptWithPatience(5));
    const test::ProgramEnd end =
        program({"--status", status, "--all-users", "--test-root", tree.paths().systemRoot},
                folder / "script")
            .run();
    EXPECT_EQ(end.status, 0) << end.error;
    const Lines lines = statusLines();
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[0], "DOING " + system("/Library/Kelmar"));
    EXPECT_EQ(lines[1], "FAIL " + system("/Library/Kelmar") + "\tits removal takes too long");
    EXPECT_EQ(lines[5], "OK " + tree.paths().agents(Scope::allUsers)[1]) << "and the rest goes on";
}

TEST_F(ScriptAndDisks, AnItemThatRootMayNotLookAtFails) {
    tree.folder(system("/Users/Shared/@Kelmar"));
    const test::SilentFileSystem silent(*mounts, system("/Users/Shared/@Kelmar"), foreigner);
    if (!silent.works()) {
        GTEST_SKIP() << test::SilentFileSystem::skipReason;
    }
    EXPECT_EQ(run({"--shared-data", shared("Store")}),
              (Lines{"FAIL " + shared("Store") + "\tpermission denied", "DONE"}));
}

} // namespace
} // namespace kelmar
