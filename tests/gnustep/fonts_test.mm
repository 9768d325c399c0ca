#include "tests/ui/text_styles.hpp"
#include "ui/appkit/fonts.h"

#include <gtest/gtest.h>

namespace kelmar {
namespace {

class Fonts : public testing::Test {
protected:
    ~Fonts() override { [pool_ drain]; }

private:
    NSAutoreleasePool* pool_ = [NSAutoreleasePool new];
};

TEST_F(Fonts, AreAsLargeAsTheLookSays) {
    for (const TextStyle style : test::everyTextStyle) {
        EXPECT_EQ([fontOf(style) pointSize], lookOf(style).points) << static_cast<int>(style);
    }
}

TEST_F(Fonts, AreAsHeavyAsTheLookSays) {
    for (const TextStyle style : test::everyTextStyle) {
        const NSFontTraitMask traits =
            [[NSFontManager sharedFontManager] traitsOfFont:fontOf(style)];
        EXPECT_EQ((traits & NSBoldFontMask) != 0, lookOf(style).weight == TextWeight::semibold)
            << static_cast<int>(style);
    }
}

TEST_F(Fonts, AreMonospacedForTheLogAlone) {
    NSString* const monospaced = [[NSFont userFixedPitchFontOfSize:bodyPoints] fontName];
    for (const TextStyle style : test::everyTextStyle) {
        EXPECT_EQ([[fontOf(style) fontName] isEqualToString:monospaced] == YES,
                  style == TextStyle::log)
            << static_cast<int>(style) << [[fontOf(style) fontName] UTF8String];
    }
}

} // namespace
} // namespace kelmar
