#include "system/text/utf16.hpp"
#include "system/text/utf8.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelmar {
namespace {

// One replacement character, and how many of them stand in a row.
std::string replaced(int count) {
    std::string text;
    for (int index = 0; index < count; ++index) {
        text += "\xEF\xBF\xBD";
    }
    return text;
}

struct Decoding {
    std::string bytes;
    std::string text;
};

class DecodeUtf8 : public testing::TestWithParam<Decoding> {};

TEST_P(DecodeUtf8, ReplacesMaximalSubparts) {
    EXPECT_EQ(decodeUtf8(GetParam().bytes), GetParam().text);
    EXPECT_EQ(isUtf8(GetParam().bytes), GetParam().bytes == GetParam().text);
    EXPECT_TRUE(isUtf8(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(
    WellFormed, DecodeUtf8,
    testing::Values(Decoding{"", ""}, Decoding{"plain\n", "plain\n"},
                    Decoding{std::string("\0x", 2), std::string("\0x", 2)},
                    Decoding{"\xC2\x80\xDF\xBF", "\xC2\x80\xDF\xBF"},
                    Decoding{"\xE0\xA0\x80\xED\x9F\xBF", "\xE0\xA0\x80\xED\x9F\xBF"},
                    Decoding{"\xEE\x80\x80\xEF\xBF\xBF", "\xEE\x80\x80\xEF\xBF\xBF"},
                    Decoding{"\xF0\x90\x80\x80", "\xF0\x90\x80\x80"},
                    Decoding{"\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"}));

// The Unicode Standard, chapter 3, tables 3-8 to 3-11.
INSTANTIATE_TEST_SUITE_P(
    TablesOfTheStandard, DecodeUtf8,
    testing::Values(Decoding{"\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41", replaced(8) + "A"},
                    Decoding{"\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41", replaced(8) + "A"},
                    Decoding{"\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42",
                             replaced(5) + "A" + replaced(2) + "B"},
                    Decoding{"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", replaced(4) + "A"}));

INSTANTIATE_TEST_SUITE_P(Truncated, DecodeUtf8,
                         testing::Values(Decoding{"\xC3", replaced(1)},
                                         Decoding{"\xE2\x82", replaced(1)},
                                         Decoding{"\xF0\x9F\x98", replaced(1)},
                                         Decoding{"\xF0\x9F\x98\xC3\xA9", replaced(1) + "\xC3\xA9"},
                                         Decoding{"a\xE2\x82z", "a" + replaced(1) + "z"},
                                         Decoding{"\xC3\x28", replaced(1) + "("}));

INSTANTIATE_TEST_SUITE_P(NoLead, DecodeUtf8,
                         testing::Values(Decoding{"\x80", replaced(1)},
                                         Decoding{"\xBF\xBF", replaced(2)},
                                         Decoding{"\xF5\x80\x80\x80", replaced(4)},
                                         Decoding{"\xFE\xFF", replaced(2)},
                                         Decoding{"\xC1\xBF", replaced(2)}));

TEST(AppendUtf8, WritesEveryLengthAndReplacesSurrogates) {
    std::string text;
    for (const char32_t codePoint : {U'A', U'\u00E9', U'\u20AC', U'\U0001F600'}) {
        appendUtf8(text, codePoint);
    }
    EXPECT_EQ(text, "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    text.clear();
    appendUtf8(text, 0xD800);
    appendUtf8(text, 0x110000);
    EXPECT_EQ(text, replaced(2));
}

TEST(MarkedUtf16, ComesOutAsUtf8InEitherByteOrder) {
    EXPECT_EQ(utf8FromMarkedUtf16(std::string("\xFE\xFF\0A\x20\xAC", 6)), "A\xE2\x82\xAC");
    EXPECT_EQ(utf8FromMarkedUtf16(std::string("\xFF\xFE"
                                              "A\0\x3D\xD8\x00\xDE",
                                              8)),
              "A\xF0\x9F\x98\x80");
}

TEST(MarkedUtf16, ReplacesWhatIsUnpairedOrCutOff) {
    EXPECT_EQ(utf8FromMarkedUtf16(std::string("\xFE\xFF\xD8\x3D\0A", 6)), replaced(1) + "A");
    EXPECT_EQ(utf8FromMarkedUtf16(std::string("\xFE\xFF\xDE\x00", 4)), replaced(1));
    EXPECT_EQ(utf8FromMarkedUtf16(std::string("\xFE\xFF\0A\0", 5)), "A" + replaced(1));
}

TEST(MarkedUtf16, IsNotSeenWithoutItsMark) {
    EXPECT_EQ(utf8FromMarkedUtf16("plain"), std::nullopt);
    EXPECT_EQ(utf8FromMarkedUtf16("\xFE"), std::nullopt);
    EXPECT_EQ(utf8FromMarkedUtf16(""), std::nullopt);
}

} // namespace
} // namespace kelmar
