#include "tests/ui/text_styles.hpp"
#include "ui/look.hpp"

#include <gtest/gtest.h>

namespace kelmar {
namespace {

TEST(Look, IndentsTheDividersOfWhatWasFoundBy52) {
    EXPECT_EQ(Look::rowTextIndent, 52);
}

TEST(Look, DrawsEveryFocusRingInsideItsControl) {
    EXPECT_LE(Look::focusRing, Look::focusRoom);
}

TEST(Look, HasRoomForTheFocusRingsInTheGapsAroundControls) {
    EXPECT_GE(Look::buttonGap, 2 * Look::focusRoom);
    EXPECT_GE(Look::cardPadding, Look::focusRoom);
    EXPECT_GE(Look::pageMargin, Look::focusRoom);
}

TEST(Look, HasRoomForTheScrollBarInThePagesMargin) {
    EXPECT_GE(Look::pageMargin, Look::scrollBar);
}

TEST(Look, FitsSymbolsAndSpinnerIntoTheirSquares) {
    EXPECT_LE(Look::rowSymbol, Look::rowIcon);
    EXPECT_LE(Look::spinner, Look::rowSymbol);
}

TEST(Look, FitsTheAlertIntoThePage) {
    EXPECT_LE(Look::alertWidth, Look::windowWidth - 2 * Look::pageMargin);
}

TEST(Look, SetsSizesAsLargeAsTheTextsBesideThem) {
    EXPECT_EQ(lookOf(TextStyle::size).points, lookOf(TextStyle::callout).points);
    EXPECT_EQ(lookOf(TextStyle::size).weight, lookOf(TextStyle::callout).weight);
}

TEST(Look, GivesTitlesAloneWeight) {
    for (const TextStyle style : test::everyTextStyle) {
        const bool title = style == TextStyle::title || style == TextStyle::sectionTitle;
        EXPECT_EQ(lookOf(style).weight == TextWeight::semibold, title) << static_cast<int>(style);
    }
}

TEST(Look, SetsEveryOtherTextSmallerThanTheTitle) {
    for (const TextStyle style : test::everyTextStyle) {
        if (style != TextStyle::title) {
            EXPECT_LT(lookOf(style).points, lookOf(TextStyle::title).points)
                << static_cast<int>(style);
        }
    }
}

} // namespace
} // namespace kelmar
