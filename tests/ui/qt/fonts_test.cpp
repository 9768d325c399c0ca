#include "tests/ui/text_styles.hpp"
#include "ui/qt/fonts.hpp"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QGuiApplication>

namespace kelmar {
namespace {

/// The application's font for as long as this lives.
class DesktopFont {
public:
    explicit DesktopFont(const QFont& font) { QGuiApplication::setFont(font); }

    DesktopFont(const DesktopFont&) = delete;
    DesktopFont& operator=(const DesktopFont&) = delete;

    ~DesktopFont() { QGuiApplication::setFont(before_); }

private:
    QFont before_ = QGuiApplication::font();
};

TEST(Fonts, AreAsLargeAsTheLookSaysWhereTheDesktopsBodyIs13) {
    QFont body = QGuiApplication::font();
    body.setPointSizeF(bodyPoints);
    const DesktopFont desktop(body);
    for (const TextStyle style : test::everyTextStyle) {
        if (style != TextStyle::log) {
            EXPECT_DOUBLE_EQ(fontOf(style).pointSizeF(), lookOf(style).points)
                << static_cast<int>(style);
        }
    }
}

TEST(Fonts, GrowWithTheDesktops) {
    QFont body = QGuiApplication::font();
    body.setPixelSize(2 * bodyPoints);
    const DesktopFont desktop(body);
    for (const TextStyle style : test::everyTextStyle) {
        if (style != TextStyle::log) {
            EXPECT_EQ(fontOf(style).pixelSize(), 2 * lookOf(style).points)
                << static_cast<int>(style);
        }
    }
}

TEST(Fonts, AreAsHeavyAsTheLookSays) {
    for (const TextStyle style : test::everyTextStyle) {
        const bool semibold = lookOf(style).weight == TextWeight::semibold;
        EXPECT_EQ(fontOf(style).weight(), semibold ? QFont::DemiBold : QFont::Normal)
            << static_cast<int>(style);
    }
}

TEST(Fonts, OfTheLogIsTheDesktopsMonospacedOne) {
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    EXPECT_EQ(fontOf(TextStyle::log).family(), fixed.family());
    EXPECT_DOUBLE_EQ(fontOf(TextStyle::log).pointSizeF() / fixed.pointSizeF(),
                     static_cast<double>(lookOf(TextStyle::log).points) / bodyPoints);
}

} // namespace
} // namespace kelmar
