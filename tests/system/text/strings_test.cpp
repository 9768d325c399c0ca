#include "system/text/strings.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelmar {
namespace {

using Words = std::vector<std::string>;

TEST(Joined, PutsTheSeparatorBetweenEachTwo) {
    EXPECT_EQ(joined({}, ", "), "");
    EXPECT_EQ(joined({"a"}, ", "), "a");
    EXPECT_EQ(joined({"a", "b"}, ", "), "a, b");
    EXPECT_EQ(joined({"a", "b", "c"}, ", "), "a, b, c");
}

TEST(Joined, KeepsEmptyAndRepeatedWords) {
    EXPECT_EQ(joined({"", "", ""}, "-"), "--");
    EXPECT_EQ(joined({"a", "a", "a"}, ""), "aaa");
}

TEST(Trimmed, LosesBlanksAndLineEndsAtBothEnds) {
    EXPECT_EQ(trimmed(" \t\r\n\v\ftext \t\r\n\v\f"), "text");
    EXPECT_EQ(trimmed("text"), "text");
    EXPECT_EQ(trimmed("\na b\n\nc "), "a b\n\nc");
}

TEST(Trimmed, OfNothingElseIsEmpty) {
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed(" "), "");
    EXPECT_EQ(trimmed(" \n\t "), "");
}

TEST(Trimmed, LosesOnlyTheCharactersThatAreNamed) {
    EXPECT_EQ(trimmed("--a-b--", "-"), "a-b");
    EXPECT_EQ(trimmed(" a ", "-"), " a ");
}

TEST(NonEmptyLines, AreTheLinesWithSomethingInThem) {
    EXPECT_EQ(nonEmptyLines(""), Words{});
    EXPECT_EQ(nonEmptyLines("\n\n"), Words{});
    EXPECT_EQ(nonEmptyLines("a"), Words{"a"});
    EXPECT_EQ(nonEmptyLines("a\n"), Words{"a"});
    EXPECT_EQ(nonEmptyLines("\na\n\n\nb"), (Words{"a", "b"}));
}

TEST(NonEmptyLines, KeepTheirBlanks) {
    EXPECT_EQ(nonEmptyLines(" a \n \n\tb\r\n"), (Words{" a ", " ", "\tb\r"}));
}

} // namespace
} // namespace kelmar
