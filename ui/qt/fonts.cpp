#include "ui/qt/fonts.hpp"

#include <QFontDatabase>
#include <QGuiApplication>

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
    // What is set does not follow the desktop's font when that changes, so only what differs is.
    if (look.points != bodyPoints) {
        font = scaled(font, static_cast<double>(look.points) / bodyPoints);
    }
    if (look.weight == TextWeight::semibold) {
        font.setWeight(QFont::DemiBold);
    }
    return font;
}

} // namespace kelmar
