#include "tests/box/script_fixture.hpp"
#include "tests/support/mac_userland.hpp"
#include "tests/support/unremovable.hpp"

#include <algorithm>
#include <fstream>

namespace kelmar {
namespace {

/// How root removes items, what it does if its tools are missing, and how it treats locked items.
class ScriptAndRemoval : public test::ScriptOnAPretendMac {
protected:
    void SetUp() override {
        ScriptOnAPretendMac::SetUp();
        if (!IsSkipped()) {
            box->tree().services(Scope::allUsers).file(box->outside(locked));
        }
    }

    static std::string failure(const std::string& reason) {
        return "FAIL /Library/Kelmar\t" + reason;
    }

    /// Makes the immutable flag here act like a Mac's `uchg`, which its owner may clear, as may
    /// root's rm(1) and `chflags nouchg`.
    void letLocksBeTheOwners() const {
        std::ofstream(box->outside("/etc/bsd-user-flags")).close();
        box->replace("/usr/bin/chflags",
                     "[ \"$1\" = nouchg,nouappnd ] && shift && exec chattr -i \"$@\"\n");
        std::filesystem::permissions(box->outside("/usr/bin/chflags"),
                                     std::filesystem::perms(0755));
    }

    /// How often a removal of the item was started in the sandbox.
    [[nodiscard]] long held() const {
        const Lines calls = box->calls();
        return std::count(calls.begin(), calls.end(), "<ITEM=/Library/Kelmar>");
    }

    const std::string locked = "/Library/Kelmar/lib/locked";
};

TEST_F(ScriptAndRemoval, WithoutItsShellNothingIsDeleted) {
    std::filesystem::remove(box->outside("/usr/bin/zsh"));
    EXPECT_EQ(run({"--all-users"}).at(1), failure("its removal broke off"));
    EXPECT_TRUE(isThere(locked));
}

TEST_F(ScriptAndRemoval, WithoutTheShellsModulesNothingIsDeleted) {
    int removed = 0;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(box->outside("/usr/lib"))) {
        if (entry.path().native().ends_with("/zsh/files.so")) {
            std::filesystem::remove(entry.path());
            ++removed;
            break;
        }
    }
    ASSERT_EQ(removed, 1);
    EXPECT_EQ(run({"--all-users"}).at(1), failure("zsh lacks what it takes to remove it"));
    EXPECT_TRUE(isThere(locked));
}

TEST_F(ScriptAndRemoval, ALockThatIsTheSystemsStays) {
    const test::Unremovable lock(box->outside(locked));
    if (!lock.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    const Lines lines = run({"--all-users"});
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_TRUE(lines[1].starts_with(failure("rm: "))) << lines[1];
    EXPECT_NE(lines[1].find("lib/locked"), std::string::npos) << lines[1];
    EXPECT_TRUE(lines[1].ends_with(": Operation not permitted")) << lines[1];
    EXPECT_TRUE(isThere(locked));
}

TEST_F(ScriptAndRemoval, ALockThatIsAPersonsGoes) {
    if (!test::MacUserland::isWanted()) {
        GTEST_SKIP() << "only a Mac tells a person's lock from the system's";
    }
    letLocksBeTheOwners();
    const test::Unremovable file(box->outside(locked));
    const test::Unremovable folder(box->outside("/Library/Kelmar/lib"));
    if (!file.works()) {
        GTEST_SKIP() << test::Unremovable::skipReason;
    }
    EXPECT_EQ(run({"--all-users"}), (Lines{"DOING /Library/Kelmar", "OK /Library/Kelmar", "DONE"}));
}

TEST_F(ScriptAndRemoval, TheKernelsSandboxHoldsItToTheItemWhereThereIsOne) {
    box->replace("/usr/bin/sandbox-exec",
                 "echo \"<$2>\" >>/box/calls\n"
                 "item=${2#ITEM=}\nshift 4\n"
                 "[ \"$1\" != rmdir ] || [ \"$2\" = \"$item\" ] || exit 1\n"
                 "exec \"$@\"\n");
    EXPECT_EQ(run({"--all-users"}).at(1), "OK /Library/Kelmar");
    EXPECT_EQ(held(), 1) << "by the sandbox";
}

TEST_F(ScriptAndRemoval, ASandboxThatHoldsNothingIsNotUsed) {
    for (const char* const rest : {"shift 4\nexec \"$@\"\n", "exit 1\n"}) {
        box->replace("/usr/bin/sandbox-exec", std::string("echo \"<$2>\" >>/box/calls\n") + rest);
        box->tree().services(Scope::allUsers);
        std::filesystem::resize_file(box->outside(status), 0);
        EXPECT_EQ(run({"--all-users"}).at(1), "OK /Library/Kelmar");
    }
    EXPECT_GT(box->calls().size(), 2U) << "it was tried";
    EXPECT_EQ(held(), 0);
}

} // namespace
} // namespace kelmar
