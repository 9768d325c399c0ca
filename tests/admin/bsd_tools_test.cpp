#include "tests/admin/bsd_userland.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

namespace kelmar {
namespace {

/// A way to call a tool.
struct Call {
    std::string tool;
    std::vector<std::string> arguments;
};

std::ostream& operator<<(std::ostream& stream, const Call& call) {
    stream << call.tool;
    for (const std::string& argument : call.arguments) {
        stream << ' ' << argument;
    }
    return stream;
}

/// The fakes themselves: that they would refuse what a Mac's tools don't know.
class FakeTool : public testing::TestWithParam<Call> {
protected:
    void SetUp() override {
        if (const auto reason = test::BsdUserland::skipReason()) {
            GTEST_SKIP() << *reason;
        }
        userland = std::make_unique<test::BsdUserland>();
        std::filesystem::create_directory(userland->outside("/folder"));
    }

    [[nodiscard]] test::ProgramEnd call() const {
        return userland->program(GetParam().tool, GetParam().arguments).run();
    }

    std::unique_ptr<test::BsdUserland> userland;
};

/// A call that macOS documents.
class MacOsCall : public FakeTool {};

/// A call that GNU's tools alone know, or that the fakes don't imitate.
class GnuCall : public FakeTool {};

TEST_P(MacOsCall, IsAccepted) {
    const test::ProgramEnd end = call();
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.error, "");
    EXPECT_EQ(userland->calls().size(), 1U);
    EXPECT_EQ(userland->refusals(), std::vector<std::string>{});
}

TEST_P(GnuCall, IsRefused) {
    const auto before = std::filesystem::last_write_time(userland->outside("/"));
    const test::ProgramEnd end = call();
    EXPECT_EQ(end.status, 64);
    EXPECT_EQ(end.output, "");
    EXPECT_NE(end.error.find(": macOS documents no such thing, or it is not imitated: "),
              std::string::npos)
        << end.error;
    EXPECT_EQ(userland->refusals().size(), 1U);
    EXPECT_EQ(std::filesystem::last_write_time(userland->outside("/")), before)
        << "something was made or removed";
}

INSTANTIATE_TEST_SUITE_P(
    Forms, MacOsCall,
    testing::Values(
        Call{"/bin/ls", {"-ldn", "--", "/folder"}}, Call{"/bin/ls", {"-A", "/folder"}},
        Call{"/bin/mkdir", {"-m", "700", "/new"}}, Call{"/bin/chmod", {"-N", "/folder"}},
        Call{"/bin/ln", {"-P", "--", "/mnt/calls", "/second"}},
        Call{"/bin/ln", {"--", "/mnt/calls", "/second"}},
        Call{"/bin/rm", {"-rf", "--", "/folder", "-x"}}, Call{"/bin/rm", {"-f", "/none"}},
        Call{"/bin/rmdir", {"/folder"}}, Call{"/bin/pwd", {"-P"}}, Call{"/bin/sleep", {"0.1"}},
        Call{"/usr/bin/id", {"-u"}}, Call{"/usr/bin/uname", {}}, Call{"/usr/bin/uname", {"-s"}},
        Call{"/usr/bin/readlink", {"/dev/fd"}}, Call{"/usr/bin/tr", {"-d", " "}},
        Call{"/usr/bin/sort", {"-u", "-n"}}, Call{"/sbin/mount", {}},
        Call{"/usr/bin/env", {"-i", "/bin/bash", "-p", "-c", ":"}},
        Call{"/bin/ps", {"-axo", "uid="}}, Call{"/bin/ps", {"-axww", "-o", "pid=", "-o", "comm="}},
        Call{"/bin/ps", {"-ww", "-o", "uid=", "-p", "1"}},
        Call{"/usr/bin/find", {"/folder", "!", "-user", "501", "-prune", "-print0"}},
        Call{"/usr/bin/find",
             {"/folder", "!", "-user", "501", "-prune", "-execdir", "/mnt/gnu/true", "{}", ";"}}));

INSTANTIATE_TEST_SUITE_P(
    Forms, GnuCall,
    testing::Values(
        Call{"/bin/ls", {"--color=never", "/folder"}}, Call{"/bin/ls", {"-ldn", "/folder", "-A"}},
        Call{"/bin/ls", {"-lZ", "/folder"}}, Call{"/bin/mkdir", {"--mode=700", "/new"}},
        Call{"/bin/mkdir", {"/new", "-p"}}, Call{"/bin/chmod", {"--reference=/folder", "/folder"}},
        Call{"/bin/chmod", {"-c", "700", "/folder"}},
        Call{"/bin/ln", {"--physical", "/mnt/calls", "/second"}},
        Call{"/bin/ln", {"-T", "/mnt/calls", "/second"}},
        Call{"/bin/ln", {"/mnt/calls", "/second", "-P"}},
        Call{"/bin/rm", {"--recursive", "/folder"}}, Call{"/bin/rm", {"/folder", "-rf"}},
        Call{"/bin/rm", {"-rf", "--one-file-system", "/folder"}},
        Call{"/bin/rmdir", {"--ignore-fail-on-non-empty", "/folder"}},
        Call{"/bin/pwd", {"--physical"}}, Call{"/bin/sleep", {"0.1s"}},
        Call{"/usr/bin/id", {"--user"}}, Call{"/usr/bin/uname", {"-i"}},
        Call{"/usr/bin/readlink", {"-e", "/dev/fd"}}, Call{"/usr/bin/readlink", {"-f", "/dev/fd"}},
        Call{"/usr/bin/tr", {"--delete", " "}}, Call{"/usr/bin/sort", {"-u", "--version-sort"}},
        Call{"/sbin/mount", {"--bind", "/folder", "/mnt"}},
        Call{"/usr/bin/env", {"--ignore-environment", "/bin/bash"}},
        Call{"/usr/bin/env", {"-i", "bash"}}, Call{"/bin/ps", {"-eo", "pid="}},
        Call{"/bin/ps", {"aux"}}, Call{"/bin/ps", {"-ax", "-o", "cmd="}},
        Call{"/bin/ps", {"-ax", "--no-headers", "-o", "pid="}},
        Call{"/usr/bin/find", {"!", "-user", "501"}},
        Call{"/usr/bin/find", {"/folder", "-printf", "%p"}},
        Call{"/usr/bin/find", {"/folder", "-readable"}},
        Call{"/usr/bin/find", {"/folder", "-user", "nobody"}},
        Call{"/usr/bin/find", {"/folder", "-execdir", "rm", "./{}", ";"}},
        Call{"/bin/launchctl", {"list"}}, Call{"/usr/sbin/stat", {"-c", "%u", "/folder"}},
        Call{"/usr/sbin/grep", {"-P", "x"}}));

} // namespace
} // namespace kelmar
