#include "system/text/harmless_text.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelmar {
namespace {

TEST(HarmlessText, IsTheTextWhereThereIsNoHarm) {
    EXPECT_EQ(harmlessText(""), "");
    EXPECT_EQ(harmlessText("~/Größe <b>&amp; 漢字 🗑"), "~/Größe <b>&amp; 漢字 🗑");
}

TEST(HarmlessText, ShowsControlCharactersByTheirPictures) {
    EXPECT_EQ(harmlessText("a\nb\rc\td\x1b[31me"), "a␊b␍c␉d␛[31me");
    EXPECT_EQ(harmlessText(std::string_view("a\0b", 3)), "a␀b");
}

TEST(HarmlessText, LeavesNoControlCharacterToATerminal) {
    EXPECT_EQ(harmlessText("a\x7f"
                           "b"),
              "a␡b");
    EXPECT_EQ(harmlessText("a\u0080b\u009Bc\u009Fd"), "a\uFFFDb\uFFFDc\uFFFDd");
    EXPECT_EQ(harmlessText("\u00A0"), "\u00A0");
}

TEST(HarmlessText, HoldsNoMarkOfADirection) {
    EXPECT_EQ(harmlessText("a\u200Eb\u200Fc\u061Cd"), "a\uFFFDb\uFFFDc\uFFFDd");
}

TEST(HarmlessText, HoldsNoCharacterThatTurnsItsDirection) {
    const std::string before = "\xE2\x80";
    const std::string isolate = "\xE2\x81";
    for (int last = 0xAA; last <= 0xAE; ++last) {
        EXPECT_EQ(harmlessText("a" + before + static_cast<char>(last) + "b"), "a\uFFFDb") << last;
    }
    for (int last = 0xA6; last <= 0xA9; ++last) {
        EXPECT_EQ(harmlessText("a" + isolate + static_cast<char>(last) + "b"), "a\uFFFDb") << last;
    }
}

TEST(HarmlessText, StaysInItsLine) {
    EXPECT_EQ(harmlessText("a\u2028b\u2029c"), "a\uFFFDb\uFFFDc");
}

TEST(HarmlessText, LeavesTheNeighboursOfThoseAlone) {
    EXPECT_EQ(harmlessText("\u2026\u2027\u202F\u2065\u2070\u2010\u200D\u061B\u061D"),
              "\u2026\u2027\u202F\u2065\u2070\u2010\u200D\u061B\u061D");
}

TEST(HarmlessText, RepairsWhatIsNoText) {
    EXPECT_EQ(harmlessText("~/\xFF\xC3("), "~/\uFFFD\uFFFD(");
}

} // namespace
} // namespace kelmar
