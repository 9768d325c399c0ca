#include "ui/log_lines.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelmar {
namespace {

TEST(LogLines, BeginEmpty) {
    const LogLines none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.size(), 0U);
    EXPECT_EQ(none.text(), "");
    EXPECT_EQ(LogLines(std::vector<std::string>{}), none);
}

TEST(LogLines, KeepTheirLinesInOrder) {
    LogLines lines;
    lines.append("one");
    lines.append("");
    lines.append("three");
    EXPECT_FALSE(lines.empty());
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0], "one");
    EXPECT_EQ(lines[1], "");
    EXPECT_EQ(lines[2], "three");
    EXPECT_EQ(lines, LogLines({"one", "", "three"}));
}

TEST(LogLines, AreOneTextWithALineFeedBetweenEachTwo) {
    EXPECT_EQ(LogLines({"one"}).text(), "one");
    EXPECT_EQ(LogLines({"one", "two", "three"}).text(), "one\ntwo\nthree");
    EXPECT_EQ(LogLines({"", "two", ""}).text(), "\ntwo\n");
}

TEST(LogLines, GiveTheTextFromALineOn) {
    const LogLines lines({"one", "two", "three"});
    EXPECT_EQ(lines.text(1), "two\nthree");
    EXPECT_EQ(lines.text(2), "three");
    EXPECT_EQ(lines.text(3), "");
    EXPECT_EQ(lines.text(4), "");
}

TEST(LogLines, ACopyStaysAsItWasWhenTheOriginalGrows) {
    LogLines lines({"one"});
    const LogLines copy = lines;
    lines.append("two");
    EXPECT_EQ(copy.size(), 1U);
    EXPECT_EQ(copy.text(), "one");
    EXPECT_EQ(copy, LogLines({"one"}));
    EXPECT_EQ(lines.text(), "one\ntwo");
}

TEST(LogLines, ACopyOfNothingStaysEmpty) {
    LogLines lines;
    const LogLines copy = lines;
    lines.append("one");
    EXPECT_TRUE(copy.empty());
    EXPECT_EQ(lines.size(), 1U);
}

TEST(LogLines, CopiesThatGrowBothPart) {
    LogLines left({"one", "two"});
    LogLines right = left;
    left.append("left");
    right.append("right");
    left.append("more");
    EXPECT_EQ(left.text(), "one\ntwo\nleft\nmore");
    EXPECT_EQ(right.text(), "one\ntwo\nright");
}

TEST(LogLines, AnOldCopyGrowsFromWhereItWas) {
    LogLines lines({"one"});
    LogLines old = lines;
    lines.append("two");
    old.append("other");
    EXPECT_EQ(old.text(), "one\nother");
    EXPECT_EQ(lines.text(), "one\ntwo");
}

TEST(LogLines, AppendALineOfTheirOwn) {
    LogLines lines({"a line long enough to have memory of its own"});
    for (int round = 0; round < 100; ++round) {
        lines.append(lines[0]);
    }
    EXPECT_EQ(lines[100], lines[0]);
    EXPECT_EQ(lines.size(), 101U);
}

TEST(LogLines, AreEqualByTheirTextAlone) {
    LogLines grown({"one"});
    const LogLines shorter = grown;
    grown.append("two");
    EXPECT_EQ(grown, LogLines({"one", "two"}));
    EXPECT_EQ(shorter, LogLines({"one"}));
    EXPECT_NE(grown, shorter);
    EXPECT_NE(LogLines({"one"}), LogLines({"two"}));
    EXPECT_NE(LogLines({"one", "two"}), LogLines({"one", "three"}));
    EXPECT_NE(LogLines({"one\ntwo"}), LogLines({"one", "two"}));
    EXPECT_NE(LogLines(), LogLines({""}));
}

TEST(LogLines, ContinueWhatTheyWere) {
    LogLines lines({"one"});
    const LogLines earlier = lines;
    EXPECT_TRUE(lines.continues(earlier));
    EXPECT_TRUE(earlier.continues(lines));
    lines.append("two");
    EXPECT_TRUE(lines.continues(earlier));
    EXPECT_FALSE(earlier.continues(lines));
    EXPECT_TRUE(lines.continues(lines));
}

TEST(LogLines, ContinueWhatTheyWereHoweverLongTheyGrow) {
    LogLines lines({"first"});
    const LogLines earlier = lines;
    for (int round = 0; round < 1000; ++round) {
        lines.append(std::to_string(round));
    }
    EXPECT_TRUE(lines.continues(earlier));
    EXPECT_EQ(earlier.text(), "first");
}

TEST(LogLines, AllContinueNothing) {
    EXPECT_TRUE(LogLines().continues(LogLines()));
    EXPECT_TRUE(LogLines({"one"}).continues(LogLines()));
    EXPECT_FALSE(LogLines().continues(LogLines({"one"})));
}

TEST(LogLines, WrittenSeparatelyDoNotContinueEachOther) {
    EXPECT_FALSE(LogLines({"one"}).continues(LogLines({"one"})));
    EXPECT_FALSE(LogLines({"one", "two"}).continues(LogLines({"one"})));
}

TEST(LogLines, ABranchDoesNotContinueTheOther) {
    LogLines left({"one"});
    LogLines right = left;
    left.append("left");
    right.append("right");
    EXPECT_FALSE(right.continues(left));
    EXPECT_FALSE(left.continues(right));
    right.append("more");
    EXPECT_FALSE(right.continues(left));
}

TEST(LogLines, AreOneLineEachWhateverNamesAreInThem) {
    LogLines log({"Removed ~/a\nKelmar has been removed.\r"});
    log.append(std::string("b\x1b[2K\xe2\x80") + '\xae');
    EXPECT_EQ(log.text(), "Removed ~/a\xe2\x90\x8aKelmar has been removed.\xe2\x90\x8d\n"
                          "b\xe2\x90\x9b[2K\xef\xbf\xbd");
}

} // namespace
} // namespace kelmar
