#include "ui/drawn_text.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelmar {
namespace {

TEST(DrawnText, OfAnOrdinarySentenceIsThatSentence) {
    EXPECT_EQ(drawnText("Kelmar 4.2, installed for you…"), "Kelmar 4.2, installed for you…");
    EXPECT_EQ(drawnText(""), "");
}

TEST(DrawnText, IsolatesEveryRightToLeftName) {
    EXPECT_EQ(drawnText("Also: תיק, مجلد, x."), "Also: \u2068תיק\u2069, \u2068مجلد\u2069, x.");
    EXPECT_EQ(drawnText("תיק"), "\u2068תיק\u2069");
}

TEST(DrawnText, KeepsTheWordsOfANameTogether) {
    EXPECT_EQ(drawnText("a, תיקייה שלי, b"), "a, \u2068תיקייה שלי\u2069, b");
    EXPECT_EQ(drawnText("תיק-שלי.תיק"), "\u2068תיק-שלי.תיק\u2069");
}

TEST(DrawnText, KeepsTheOrderOfAPathsFolders) {
    EXPECT_EQ(drawnText("~/תיק/שלי"), "~/\u200B\u2068תיק\u2069/\u200B\u2068שלי\u2069");
}

TEST(DrawnText, LetsALineBreakAfterEverySlash) {
    EXPECT_EQ(drawnText("~/Library/Kelmar"), "~/\u200BLibrary/\u200BKelmar");
}

TEST(DrawnText, ShowsAControlCharacterAsOneThatFontsHave) {
    EXPECT_EQ(drawnText("a\nb\x1b[31m\x7f"), "a\uFFFDb\uFFFD[31m\uFFFD");
}

TEST(DrawnText, ObeysNoDirectionMarkOfAName) {
    // In two parts, so that they don't turn this line round.
    const std::string turned = std::string("a\xE2\x80") + "\xAE" + "b\xE2\x81" + "\xA8" + "c";
    EXPECT_EQ(drawnText(turned), "a\uFFFDb\uFFFDc");
}

} // namespace
} // namespace kelmar
