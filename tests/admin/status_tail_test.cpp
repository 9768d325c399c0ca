#include "admin/status_tail.hpp"
#include "tests/support/durations.hpp"
#include "tests/support/temporary_folder.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <unistd.h>

namespace kelmar {
namespace {

using namespace std::chrono_literals;
using Lines = std::vector<std::string>;
const std::string replacement = "\xEF\xBF\xBD";

class Tail : public testing::Test {
protected:
    void append(const std::string& text) const {
        std::ofstream(file, std::ios::app | std::ios::binary) << text;
    }

    void receive(const std::string& line) {
        {
            const std::scoped_lock lock(mutex);
            lines.push_back(line);
            doneWhenReceived.push_back(tail.sawDone());
        }
        arrived.notify_all();
    }

    /// Waits until so many lines are there.
    [[nodiscard]] bool waitFor(std::size_t count) {
        std::unique_lock lock(mutex);
        return arrived.wait_for(lock, std::chrono::seconds(60),
                                [&] { return lines.size() >= count; });
    }

    /// While the tail runs; after its stop `lines` can be read as they are.
    [[nodiscard]] Lines soFar() {
        const std::scoped_lock lock(mutex);
        return lines;
    }

    /// Long enough for the tail to have read at least once more.
    static void letItRead() { std::this_thread::sleep_for(std::chrono::milliseconds(500)); }

    test::TemporaryFolder folder;
    std::string file = folder / "status";
    std::mutex mutex;
    std::condition_variable arrived;
    Lines lines;
    std::vector<bool> doneWhenReceived;
    StatusTail tail{file, [this](const std::string& line) { receive(line); }};
};

TEST_F(Tail, ReadsAtOnceOnStart) {
    append("one\n");
    const auto untilRead = [this] {
        lines.clear();
        StatusTail fresh(file, [this](const std::string& line) { receive(line); });
        const auto took = test::timeOf([&] {
            fresh.start();
            EXPECT_TRUE(waitFor(1));
        });
        fresh.stop();
        EXPECT_EQ(lines, Lines{"one"});
        return took;
    };
    EXPECT_LT(test::shortestOf(150ms, untilRead), 150ms);
}

TEST_F(Tail, ALineInTwoPiecesIsHandedOutOnceWhole) {
    tail.start();
    append("DOI");
    letItRead();
    EXPECT_EQ(soFar(), Lines{});
    append("NG /a\n");
    EXPECT_TRUE(waitFor(1));
    tail.stop();
    EXPECT_EQ(lines, Lines{"DOING /a"});
}

TEST_F(Tail, SeveralLinesOfOneReadComeInOrderEmptyOnesToo) {
    append("a\n\nb\nc\n");
    tail.start();
    EXPECT_TRUE(waitFor(4));
    tail.stop();
    EXPECT_EQ(lines, (Lines{"a", "", "b", "c"}));
}

TEST_F(Tail, ALastLineWithoutItsEndComesWithStop) {
    append("a\nb");
    tail.start();
    EXPECT_TRUE(waitFor(1));
    letItRead();
    EXPECT_EQ(soFar(), Lines{"a"});
    tail.stop();
    EXPECT_EQ(lines, (Lines{"a", "b"}));
    EXPECT_FALSE(tail.sawDone());
}

TEST_F(Tail, DoneIsSeenBeforeItsLineIsHandedOut) {
    append("OK /a\nDONE\n");
    tail.start();
    tail.stop();
    EXPECT_TRUE(tail.sawDone());
    EXPECT_EQ(lines, (Lines{"OK /a", "DONE"}));
    EXPECT_EQ(doneWhenReceived, (std::vector<bool>{false, true}));
}

TEST_F(Tail, DoneCountsByItsBeginningAndWithoutALineEnd) {
    append("DONE and more");
    tail.start();
    tail.stop();
    EXPECT_TRUE(tail.sawDone());
    EXPECT_EQ(lines, Lines{"DONE and more"});
}

TEST_F(Tail, DoneElsewhereInALineDoesNotCount) {
    append(" DONE\nLOG DONE\nDON\n");
    tail.start();
    tail.stop();
    EXPECT_FALSE(tail.sawDone());
}

TEST_F(Tail, AFileThatNeverComesYieldsNothing) {
    tail.start();
    letItRead();
    tail.stop();
    EXPECT_TRUE(lines.empty());
    EXPECT_FALSE(tail.sawDone());
}

TEST_F(Tail, AFileThatComesLateIsRead) {
    tail.start();
    letItRead();
    append("late\n");
    EXPECT_TRUE(waitFor(1));
    tail.stop();
    EXPECT_EQ(lines, Lines{"late"});
}

TEST_F(Tail, AfterStopNothingIsReadAgain) {
    append("a\n");
    tail.start();
    tail.stop();
    append("b\n");
    letItRead();
    EXPECT_EQ(lines, Lines{"a"});
}

TEST_F(Tail, ACarriageReturnStaysPartOfItsLine) {
    append("a\r\nb\r");
    tail.start();
    tail.stop();
    EXPECT_EQ(lines, (Lines{"a\r", "b\r"}));
}

TEST_F(Tail, ACharacterCutBetweenTwoReadsIsReplacedOnBothSides) {
    append("\xC3");
    tail.start();
    letItRead();
    append("\xA9\nwhole \xC3\xA9\n");
    EXPECT_TRUE(waitFor(2));
    tail.stop();
    EXPECT_EQ(lines, (Lines{replacement + replacement, "whole \xC3\xA9"}));
}

TEST_F(Tail, AFileThatShrinksIsNotReadAgain) {
    append("one\ntwo\n");
    tail.start();
    EXPECT_TRUE(waitFor(2));
    ASSERT_EQ(::truncate(file.c_str(), 0), 0);
    append("new\n");
    letItRead();
    tail.stop();
    EXPECT_EQ(lines, (Lines{"one", "two"}));
}

TEST_F(Tail, AHundredThousandLinesArriveInOrder) {
    std::string text;
    for (int number = 0; number < 100'000; ++number) {
        text += "LOG " + std::to_string(number) + "\n";
    }
    append(text);
    EXPECT_LT(test::workOf([this] {
                  tail.start();
                  tail.stop();
              }),
              5s);
    ASSERT_EQ(lines.size(), 100'000U);
    for (std::size_t number = 0; number < lines.size(); ++number) {
        ASSERT_EQ(lines[number], "LOG " + std::to_string(number));
    }
}

TEST_F(Tail, AMegabyteWithoutALineEndIsOneLine) {
    tail.start();
    const std::string piece(100'000, 'x');
    for (int count = 0; count < 10; ++count) {
        append(piece);
    }
    append("\nnext\n");
    EXPECT_TRUE(waitFor(2));
    tail.stop();
    EXPECT_EQ(lines[0].size(), 1'000'000U);
    EXPECT_EQ(lines[1], "next");
}

TEST_F(Tail, ALineReachesTheCallbackWithinTwoPeriods) {
    append("");
    tail.start();
    int inTime = 0;
    for (std::size_t round = 1; round <= 9; ++round) {
        std::this_thread::sleep_for(70ms);
        append("line\n");
        std::this_thread::sleep_for(400ms);
        inTime += soFar().size() == round ? 1 : 0;
        EXPECT_TRUE(waitFor(round));
    }
    tail.stop();
    EXPECT_GT(inTime, 4) << "a busy machine may have held back the others";
}

TEST_F(Tail, StopDoesNotWaitForTheNextPeriod) {
    append("a\n");
    const auto untilStopped = [this] {
        lines.clear();
        StatusTail fresh(file, [this](const std::string& line) { receive(line); });
        fresh.start();
        EXPECT_TRUE(waitFor(1));
        return test::timeOf([&] { fresh.stop(); });
    };
    EXPECT_LT(test::shortestOf(100ms, untilStopped), 100ms);
}

TEST_F(Tail, OfATerabyteReadsNothingAndSaysSo) {
    append("LOG a\n");
    std::filesystem::resize_file(file, std::uintmax_t{1} << 40);
    tail.start();
    tail.stop();
    EXPECT_FALSE(tail.isSound());
    EXPECT_EQ(lines, Lines{});
}

TEST_F(Tail, TakesNoLineThatNobodysScriptWrites) {
    append("LOG a\n" + std::string(5'000'000, 'x'));
    tail.start();
    tail.stop();
    EXPECT_FALSE(tail.isSound());
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0], "LOG a");
}

TEST_F(Tail, TakesALongPathInALine) {
    const std::string line = "OK /" + std::string(500'000, 'x') + "\xC3\xA4";
    append(line + "\nDONE\n");
    tail.start();
    tail.stop();
    EXPECT_TRUE(tail.isSound());
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_TRUE(lines[0] == line);
}

TEST(TailWithoutStop, HandsNothingOutAfterItsEnd) {
    const test::TemporaryFolder folder;
    int received = 0;
    std::ofstream(folder / "status") << "a";
    {
        StatusTail tail(folder / "status", [&received](const std::string&) { ++received; });
        tail.start();
    }
    std::ofstream(folder / "status") << "b\n";
    EXPECT_EQ(received, 0);
}

} // namespace
} // namespace kelmar
