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

QFont font(TextStyle style) {
    QFont font = QGuiApplication::font();
    switch (style) {
    case TextStyle::title:
        font = scaled(font, 20.0 / 13);
        font.setWeight(QFont::DemiBold);
        return font;
    case TextStyle::heading:
        font.setWeight(QFont::DemiBold);
        return font;
    case TextStyle::callout:
        return scaled(font, 12.0 / 13);
    case TextStyle::record:
        return scaled(QFontDatabase::systemFont(QFontDatabase::FixedFont), 12.0 / 13);
    case TextStyle::body:
        break;
    }
    return font;
}

} // namespace kelmar
