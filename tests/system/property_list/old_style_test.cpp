#include "system/property_list/old_style.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace kelmar {
namespace {

using Text = std::optional<std::string>;

Text version(const std::string& text) {
    return stringInOldStylePropertyList(text, "V");
}

TEST(OldStylePropertyList, HoldsTextWithAndWithoutQuotes) {
    EXPECT_EQ(version("{ V = \"1.2\"; }"), "1.2");
    EXPECT_EQ(version("{V=1.2;}"), "1.2");
    EXPECT_EQ(version("{ \"V\" = 'one two'; }"), "one two");
    EXPECT_EQ(version("{ V = com.kelmar/a-b_$1:2; }"), "com.kelmar/a-b_$1:2");
    EXPECT_EQ(version("{ V = \"\"; }"), "");
    EXPECT_EQ(version("{ V = \"\xC3\xA9\"; }"), "\xC3\xA9");
}

TEST(OldStylePropertyList, OtherValuesStandBesideTheOneWanted) {
    EXPECT_EQ(version("{ a = { V = 9; b = (); }; c = (1, \"2\", { V = 8; },); d = <0fA B>;\n V = "
                      "1; e = 2; }"),
              "1");
}

TEST(OldStylePropertyList, CommentsAreSkipped) {
    EXPECT_EQ(version("// head\n{ /* V = 0; */ V /**/ = // five\n 5; } // tail"), "5");
    EXPECT_EQ(version("{ V = 5; } /* open"), std::nullopt);
    EXPECT_EQ(version("{ V = 5; /* } "), std::nullopt);
}

TEST(OldStylePropertyList, EscapesMeanWhatTheyName) {
    EXPECT_EQ(version(R"({ V = "a\"b\\c\'d\tq\n"; })"), "a\"b\\c'd\tq\n");
    EXPECT_EQ(version(R"({ V = "\101\12\U00e9\u20AC"; })"), "A\n\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(version("{ V = \"a\\\nb\\q\"; }"), "a\nbq");
    EXPECT_EQ(version(R"({ V = "\251"; })"), std::nullopt) << "of an encoding that is long gone";
    EXPECT_EQ(version(R"({ V = "\U"; })"), std::nullopt);
}

TEST(OldStylePropertyList, TheLastOfSeveralValuesCounts) {
    EXPECT_EQ(version("{ V = 1; V = 2; }"), "2");
    EXPECT_EQ(version("{ V = 1; V = (2); }"), std::nullopt);
}

TEST(OldStylePropertyList, WhatIsNoTextHoldsNothing) {
    for (const char* const text : {"{ V = (1); }", "{ V = { V = 1; }; }", "{ V = <31>; }",
                                   "{ W = 1; }", "{}", "( V, 1 )", "V", "<31>", "{ v = 1; }"}) {
        EXPECT_EQ(version(text), std::nullopt) << text;
    }
}

TEST(OldStylePropertyList, EveryDepartureFromTheFormHoldsNothing) {
    for (const char* const text : {"",
                                   " ",
                                   "{",
                                   "{ V",
                                   "{ V =",
                                   "{ V = 1",
                                   "{ V = 1;",
                                   "{ V = 1 }",
                                   "{ V 1; }",
                                   "{ = 1; }",
                                   "{ V = ; }",
                                   "{ V = 1; } x",
                                   "{ V = 1; }}",
                                   "{ V = \"1; }",
                                   "{ V = \"1\\",
                                   "{ V = 1; a = <0>; }",
                                   "{ V = 1; a = <0g>; }",
                                   "{ V = 1; a = <00; }",
                                   "{ V = 1; a = (1 2); }",
                                   "{ V = 1; a = (,); }",
                                   "{ V = 1; a = (1; }",
                                   "{ V = \xC3\xA9; }",
                                   "{ V = 1;; }",
                                   "{ V = 1, }",
                                   "V = 1;"}) {
        EXPECT_EQ(version(text), std::nullopt) << text;
    }
}

} // namespace
} // namespace kelmar
