#include "ui/qt/fonts.hpp"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

namespace kelmar {

namespace {

QFont scaled(QFont font, double factor) {
    if (font.pixelSize() > 0) {
        font.setPixelSize(qRound(font.pixelSize() * factor));
    } else {
        font.setPointSizeF(font.pointSizeF() * factor);
    }
    return font;
}

} // namespace

QFont fontOf(TextStyle style) {
    const TextLook look = lookOf(style);
    QFont font = look.face == TextFace::monospaced
                     ? QFontDatabase::systemFont(QFontDatabase::FixedFont)
                     : QGuiApplication::font();
    // Properties that are set no longer follow the desktop's font, so set only those that differ.
    if (look.points != bodyPoints) {
        font = scaled(font, static_cast<double>(look.points) / bodyPoints);
    }
    if (look.weight == TextWeight::semibold) {
        font.setWeight(QFont::DemiBold);
    }
    return font;
}

int lineHeight(TextStyle style) {
    return static_cast<int>(std::ceil(QFontMetricsF(fontOf(style)).height()));
}

int grown(int length) {
    const double factor =
        static_cast<double>(QFontInfo(QGuiApplication::font()).pixelSize()) / bodyPoints;
    return static_cast<int>(length * std::max(1.0, factor));
}

} // namespace kelmar
