#include "ui/qt/colours.hpp"
#include "ui/qt/symbols.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

namespace kelmar {
namespace {

/// How much of the picture is drawn, from 0 to 1.
double coverage(const QPixmap& pixmap) {
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            sum += qAlpha(image.pixel(x, y)) / 255.0;
        }
    }
    return sum / image.width() / image.height();
}

TEST(Symbols, AreThereUnderTheNamesThatThePageUses) {
    for (const char* const name :
         {"circle", "checkmark.circle.fill", "gearshape", "gearshape.2", "slider.horizontal.3",
          "exclamationmark.triangle.fill", "exclamationmark.circle", "lock.fill", "folder",
          "checkmark", "chevron.right", "chevron.down"}) {
        const double drawn = coverage(symbol(name, Qt::black, 20, 1));
        EXPECT_GT(drawn, 0.02) << name;
        EXPECT_LT(drawn, 0.8) << name;
    }
    EXPECT_GT(coverage(picture("kelmar-uninstaller", 56, 1)), 0.5);
    EXPECT_GT(coverage(picture("kelmar-app", 28, 1)), 0.5);
}

TEST(Symbols, OfAnotherNameAreEmpty) {
    EXPECT_EQ(coverage(symbol("no.such.symbol", Qt::black, 20, 1)), 0);
}

TEST(Symbols, AreDrawnInTheColourAskedFor) {
    const QImage image = symbol("lock.fill", QColor(10, 200, 30), 20, 1).toImage();
    EXPECT_EQ(image.pixelColor(10, 14).rgb(), QColor(10, 200, 30).rgb());
}

TEST(Symbols, HaveFourTimesThePixelsOnASharperScreen) {
    const QPixmap pixmap = symbol("folder", Qt::black, 20, 2);
    EXPECT_EQ(pixmap.size(), QSize(40, 40));
    EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(20, 20));
}

/// Relative contrast as WCAG 2.1 defines it.
double contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& colour) {
        const auto linear = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(static_cast<double>(colour.redF())) +
               0.7152 * linear(static_cast<double>(colour.greenF())) +
               0.0722 * linear(static_cast<double>(colour.blueF()));
    };
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return first > second ? first / second : second / first;
}

TEST(Colours, CanBeReadInLightAndDark) {
    QPalette dark(QColor(0x2d, 0x2d, 0x2d));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    for (const QPalette& palette : {QApplication::palette(), dark}) {
        const Colours colours(palette);
        for (const QColor& ground : {colours.page, colours.card}) {
            EXPECT_GE(contrast(colours.text, ground), 7);
            EXPECT_GE(contrast(colours.secondary, ground), 4.5);
            EXPECT_GE(contrast(colours.green, ground), 3) << "a symbol, not a text";
            EXPECT_GE(contrast(colours.orange, ground), 3);
            EXPECT_GE(contrast(colours.red, ground), 4.5);
        }
        EXPECT_GE(contrast(colours.red, colours.control), 4.5);
        EXPECT_GE(contrast(colours.onAccent, colours.accent), 4.5);
    }
    EXPECT_FALSE(Colours(QApplication::palette()).dark);
    EXPECT_TRUE(Colours(dark).dark);
}

} // namespace
} // namespace kelmar
