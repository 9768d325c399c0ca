#include "tests/support/temporary_folder.hpp"
#include "tests/sweep/errors.hpp"
#include "tests/sweep/points.hpp"
#include "tests/sweep/swept_mac.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/syscall.h>

namespace kelmar {
namespace {

namespace fs = std::filesystem;
using test::Point;
using test::ProgramEnd;
using test::SweptMac;
using test::SystemCall;
using test::Verdict;
using Complaints = std::vector<std::string>;

/// The judge itself: a run that went wrong in each of the ways that it is to see.
class SweptRun : public testing::Test {
protected:
    static Point point(Verdict::Kind kind = Verdict::Kind::fail) {
        return {{{1}, 1, SYS_unlinkat, "/bin/rm", 1}, {kind, EIO}};
    }

    /// How an undisturbed run ends, with one thing then made otherwise.
    template <class Change>
    static Complaints judged(const std::string& request, Change change) {
        SweptMac mac(request);
        ProgramEnd end = mac.program().run();
        change(*mac.program().environment.at("KELMAR_UNINSTALLER_TEST_ROOT"), end);
        return mac.complaints(point(), end);
    }
};

TEST_F(SweptRun, ThatEndsAsUndisturbedIsNotComplainedOf) {
    for (const char* const request : {"scan", "keep", "delete"}) {
        EXPECT_EQ(judged(request, [](const std::string&, ProgramEnd&) {}), Complaints{}) << request;
    }
}

TEST_F(SweptRun, ThatLosesDataIsComplainedOf) {
    EXPECT_EQ(judged("keep",
                     [](const std::string& root, ProgramEnd&) {
                         fs::remove_all(root + "/home/Library/Preferences/com.other.plist");
                     }),
              (Complaints{"lost or changed: /home/Library/Preferences/com.other.plist",
                          "lost or changed: /home/Library/Preferences/com.other.plist"}))
        << "it is not there after the next run either";
}

TEST_F(SweptRun, ThatLeavesSomethingInSilenceIsComplainedOf) {
    const auto leave = [](const std::string& root, ProgramEnd&) {
        fs::create_directory(root + "/home/Library/Kelmar");
    };
    EXPECT_EQ(judged("keep", leave),
              Complaints{"still there, and not listed: /home/Library/Kelmar"});
}

TEST_F(SweptRun, ThatListsWhatItLeavesIsNotComplainedOf) {
    const auto listed = [](const std::string& root, ProgramEnd& end) {
        fs::create_directory(root + "/home/Library/Kelmar");
        end.status = 1;
        end.output = "Not removed:\n    ~/Library/Kelmar: it is still there\n";
    };
    EXPECT_EQ(judged("keep", listed), Complaints{});
}

TEST_F(SweptRun, ThatSaysDataIsGoneWhichIsThereIsComplainedOf) {
    const auto lie = [](const std::string& root, ProgramEnd& end) {
        fs::create_directories(root + "/home/Kelmar/Store");
        end.output = "    Removed ~/Kelmar/Store\nKelmar has been removed.\n";
    };
    EXPECT_EQ(judged("delete", lie), Complaints{"still there, and not listed: /home/Kelmar/Store"});
}

TEST_F(SweptRun, ThatCrashesOrHangsIsComplainedOf) {
    EXPECT_EQ(judged("keep",
                     [](const std::string&, ProgramEnd& end) {
                         end.status = -SIGABRT;
                         end.error = "why";
                     })
                  .front(),
              "it ended with -6: why");
    EXPECT_EQ(judged("keep", [](const std::string&, ProgramEnd& end) { end.timedOut = true; }),
              Complaints{"it hung"});
}

TEST_F(SweptRun, WhoseWordsAreOfAnotherStatusIsComplainedOf) {
    EXPECT_EQ(judged("keep", [](const std::string&, ProgramEnd& end) { end.status = 1; }),
              Complaints{"its words are not those of status 1"});
    EXPECT_EQ(judged("keep", [](const std::string&, ProgramEnd& end) { end.status = 2; }),
              Complaints{"it ended with 2"});
}

TEST_F(SweptRun, OfAScanThatListsOtherThingsIsComplainedOf) {
    EXPECT_EQ(judged("scan",
                     [](const std::string&, ProgramEnd& end) { end.output += "Settings: none\n"; }),
              Complaints{"it lists what is not so: Settings: none"});
}

TEST(SweepPoints, AreEveryErrorOfEveryCallButThoseThatNoKernelLeavesUndone) {
    const std::string program = "/p";
    const std::vector<SystemCall> calls{{{1}, 1, SYS_read, program, 1},
                                        {{1}, 2, SYS_close, program, 1},
                                        {{1}, 3, SYS_futex, program, 1},
                                        {{1}, 4, SYS_mmap, program, 1}};
    const std::vector<Point> fails = test::pointsOf(calls, Verdict::Kind::fail, program);
    ASSERT_EQ(fails.size(), 2U);
    EXPECT_EQ(test::describe(fails[0]), "read 1 of thread 1 of /p: Input/output error");
    EXPECT_EQ(test::describe(fails[1]), "read 1 of thread 1 of /p: Interrupted system call");
    EXPECT_EQ(test::pointsOf(calls, Verdict::Kind::kill, program).size(), 4U);
}

TEST(SweepPoints, StandOnceForAToolThatIsStartedAgainAndAgain) {
    const std::vector<SystemCall> calls{{{1, 1}, 1, SYS_read, "/bin/rm", 1},
                                        {{1, 2}, 1, SYS_read, "/bin/rm", 1},
                                        {{1, 2}, 2, SYS_read, "/bin/rm", 2},
                                        {{1, 3}, 1, SYS_read, "/p", 1},
                                        {{1, 4}, 1, SYS_read, "/p", 1}};
    EXPECT_EQ(test::pointsOf(calls, Verdict::Kind::kill, "/p").size(), 4U);
}

TEST(SweepPoints, ASampleIsSpreadOverAll) {
    std::vector<Point> points(10);
    for (std::size_t each = 0; each < points.size(); ++each) {
        points[each].call.index = each;
    }
    const std::vector<Point> some = test::sample(points, 4);
    ASSERT_EQ(some.size(), 2U);
    EXPECT_EQ(some[0].call.index, 2U);
    EXPECT_EQ(some[1].call.index, 6U);
    EXPECT_EQ(test::sample(points, 1).size(), points.size());
}

} // namespace
} // namespace kelmar
