#include "tests/support/temporary_folder.hpp"
#include "tests/trace/trace.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace kelmar {
namespace {

using test::Follow;
using test::SystemCall;
using test::ThreadPath;
using test::Verdict;

class Trace : public testing::Test {
protected:
    void SetUp() override {
        if (const std::string reason = test::whyNotTraced(); !reason.empty()) {
            GTEST_SKIP() << reason;
        }
    }

    static test::Program sample(std::vector<std::string> arguments) {
        test::Program program;
        program.path = KELMAR_TRACED_SAMPLE;
        program.arguments = std::move(arguments);
        return program;
    }

    /// How often each thread made the sample's own system call.
    static std::map<ThreadPath, int> counts(const test::Recording& recording) {
        std::map<ThreadPath, int> counts;
        for (const SystemCall& call : recording.calls) {
            if (call.number == SYS_getpgid) {
                ++counts[call.thread];
            }
        }
        return counts;
    }

    static std::vector<int> inOrder(const std::map<ThreadPath, int>& counts) {
        std::vector<int> values;
        values.reserve(counts.size());
        for (const auto& [thread, count] : counts) {
            values.push_back(count);
        }
        return values;
    }

    /// The first system call of that kind.
    static SystemCall first(const test::Recording& recording, long number) {
        for (const SystemCall& call : recording.calls) {
            if (call.number == number) {
                return call;
            }
        }
        throw std::runtime_error("no such system call was made");
    }
};

TEST_F(Trace, NumbersTheCallsOfAProgramFromItsOwnFirst) {
    test::Program program = sample({});
    program.inChild = [] { ::syscall(SYS_getpgid, 0); };
    const test::Recording recording = test::record(program, Follow::threads);
    EXPECT_EQ(recording.end.status, 0);
    EXPECT_EQ(counts(recording), (std::map<ThreadPath, int>{}));
    ASSERT_FALSE(recording.calls.empty());
    EXPECT_EQ(recording.calls.front().thread, ThreadPath{1});
    EXPECT_EQ(recording.calls.front().index, 1U);
    EXPECT_EQ(recording.calls.front().executable, KELMAR_TRACED_SAMPLE);
    EXPECT_EQ(first(recording, SYS_exit_group).index, recording.calls.size());
}

TEST_F(Trace, CountsEachThreadsCallsInTheOrderInWhichTheThreadsWereMade) {
    const test::Recording once = test::record(sample({"threads"}), Follow::threads);
    EXPECT_EQ(once.end.status, 0);
    EXPECT_EQ(inOrder(counts(once)), (std::vector{1, 3, 5}));
    EXPECT_EQ(counts(test::record(sample({"threads"}), Follow::threads)), counts(once));
}

TEST_F(Trace, FollowsAForkedChildWhenAskedTo) {
    const test::Recording both = test::record(sample({"child", "7"}), Follow::processes);
    EXPECT_EQ(both.end.status, 4);
    EXPECT_EQ(inOrder(counts(both)), std::vector{7});
    const test::Recording one = test::record(sample({"child", "7"}), Follow::threads);
    EXPECT_EQ(one.end.status, 4) << "the child runs all the same";
    EXPECT_EQ(inOrder(counts(one)), std::vector<int>{});
}

TEST_F(Trace, FollowsASpawnedProgramWhoseParentIsHeldMeanwhile) {
    const test::Recording both = test::record(sample({"spawn", "/bin/false"}), Follow::processes);
    EXPECT_EQ(both.end.status, 1);
    EXPECT_EQ(std::filesystem::path(both.calls.back().executable).filename(), "false");
    const test::Recording one = test::record(sample({"spawn", "/bin/false"}), Follow::threads);
    EXPECT_EQ(one.end.status, 1);
    EXPECT_EQ(one.calls.back().executable, KELMAR_TRACED_SAMPLE);
}

TEST_F(Trace, FollowsAProgramThatAThreadExecutes) {
    const test::Recording recording =
        test::record(sample({"execute", "/bin/false"}), Follow::threads);
    EXPECT_EQ(recording.end.status, 1);
    EXPECT_EQ(inOrder(counts(recording)), std::vector{2});
    EXPECT_EQ(std::filesystem::path(recording.calls.back().executable).filename(), "false");
}

TEST_F(Trace, KeepsWhatTheProgramWrites) {
    test::Program program;
    program.path = "/bin/sh";
    program.arguments = {"-c", "echo one; echo two >&2; echo three"};
    const test::ProgramEnd end = test::record(program, Follow::processes).end;
    EXPECT_EQ(end.status, 0);
    EXPECT_EQ(end.output, "one\nthree\n");
    EXPECT_EQ(end.error, "two\n");
}

TEST_F(Trace, LeavesSignalsToThoseWhomTheyAreFor) {
    EXPECT_EQ(test::record(sample({"signal"}), Follow::processes).end.status, 6);
    EXPECT_EQ(test::record(sample({"stop"}), Follow::processes).end.status, 5);
}

TEST_F(Trace, KillsEverybodyAtOneSystemCall) {
    test::TemporaryFolder folder;
    const test::Program program = sample({"folder", folder / "made"});
    const SystemCall call = first(test::record(program, Follow::processes), SYS_mkdirat);
    std::filesystem::remove(folder / "made");
    const test::Struck struck =
        test::strike(program, Follow::processes, call, {Verdict::Kind::kill});
    EXPECT_TRUE(struck.came);
    EXPECT_EQ(struck.end.status, -SIGKILL);
    EXPECT_EQ(struck.end.output, "");
    EXPECT_FALSE(std::filesystem::exists(folder / "made")) << "it is not executed";
}

TEST_F(Trace, LeavesNobodyBehind) {
    int waiting = 0;
    const auto killWhenBothWait = [&waiting](const SystemCall& call) {
        waiting += call.number == SYS_rt_sigsuspend ? 1 : 0;
        return waiting == 2 ? Verdict{Verdict::Kind::kill} : Verdict{};
    };
    for (const bool killed : {true, false}) {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe(ends.data()), 0);
        const test::ProgramEnd end =
            killed ? test::trace(sample({"wait"}), Follow::processes, killWhenBothWait)
                   : test::record(sample({"leave"}), Follow::processes).end;
        EXPECT_EQ(end.status, killed ? -SIGKILL : 0);
        ::close(ends[1]);
        pollfd readEnd{ends[0], POLLIN, 0};
        ::poll(&readEnd, 1, 0);
        EXPECT_EQ(readEnd.revents, POLLHUP) << "nobody holds the other end any more";
        ::close(ends[0]);
    }
}

TEST_F(Trace, EndsAProgramThatNeverDoes) {
    test::Program program = sample({"wait"});
    program.timeout = std::chrono::seconds(1);
    const test::ProgramEnd end = test::record(program, Follow::processes).end;
    EXPECT_TRUE(end.timedOut);
    EXPECT_EQ(end.status, -SIGKILL);
}

TEST_F(Trace, LetsOneSystemCallFailWithoutExecutingIt) {
    if (const std::string reason = test::whyNoneFails(); !reason.empty()) {
        GTEST_SKIP() << reason;
    }
    test::TemporaryFolder folder;
    const test::Program program = sample({"folder", folder / "made"});
    const test::Recording recording = test::record(program, Follow::threads);
    EXPECT_EQ(recording.end.output, "made\n");
    std::filesystem::remove(folder / "made");
    const SystemCall call = first(recording, SYS_mkdirat);
    for (const int error : {ENOSPC, EINTR}) {
        const test::Struck struck =
            test::strike(program, Follow::threads, call, {Verdict::Kind::fail, error});
        EXPECT_TRUE(struck.came);
        EXPECT_EQ(struck.end.output, std::string(std::strerror(error)) + "\n");
        EXPECT_EQ(struck.end.status, 0);
        EXPECT_FALSE(std::filesystem::exists(folder / "made"));
    }
}

TEST_F(Trace, StrikesOneThreadsCallAndNoOthers) {
    if (const std::string reason = test::whyNoneFails(); !reason.empty()) {
        GTEST_SKIP() << reason;
    }
    test::TemporaryFolder folder;
    const std::string makeFolder = std::string(KELMAR_TRACED_SAMPLE) + " folder ";
    test::Program program;
    program.path = "/bin/sh";
    program.arguments = {"-c",
                         makeFolder + (folder / "one") + "; " + makeFolder + (folder / "two")};
    std::vector<SystemCall> made;
    for (const SystemCall& call : test::record(program, Follow::processes).calls) {
        if (call.number == SYS_mkdirat) {
            made.push_back(call);
        }
    }
    ASSERT_EQ(made.size(), 2U);
    std::filesystem::remove(folder / "one");
    std::filesystem::remove(folder / "two");
    const Verdict full{Verdict::Kind::fail, ENOSPC};
    const test::Struck struck = test::strike(program, Follow::processes, made[1], full);
    EXPECT_TRUE(struck.came);
    EXPECT_EQ(struck.end.output, "made\nNo space left on device\n");
    SystemCall never = made[1];
    never.occurrence = 1000;
    EXPECT_FALSE(test::strike(program, Follow::processes, never, full).came);
}

TEST_F(Trace, NamesASystemCallForPeople) {
    EXPECT_EQ(test::describe({{1, 2}, 7, SYS_unlinkat, "/bin/rm"}),
              "call 7 of thread 1.2 of /bin/rm: unlinkat");
    EXPECT_EQ(test::nameOf({{1}, 1, 99999, ""}), "99999");
}

} // namespace
} // namespace kelmar
