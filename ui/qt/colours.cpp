#include "ui/qt/colours.hpp"

#include <algorithm>
#include <cmath>

namespace kelmar {

namespace {

/// `share` of `over` on `under`.
QColor mixed(const QColor& under, const QColor& over, double share) {
    const auto part = [share](float below, float above) {
        return static_cast<float>(static_cast<double>(below) * (1 - share) +
                                  static_cast<double>(above) * share);
    };
    return QColor::fromRgbF(part(under.redF(), over.redF()), part(under.greenF(), over.greenF()),
                            part(under.blueF(), over.blueF()));
}

/// Relative luminance as WCAG 2.1 defines it.
double luminance(const QColor& colour) {
    const auto linear = [](float channel) {
        const auto value = static_cast<double>(channel);
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

/// The platform's highlight, darkened until white text on it can be read (WCAG 2.1, level AA).
QColor readable(QColor fill) {
    while (contrast(fill, Qt::white) < 4.5) {
        fill = mixed(fill, Qt::black, 0.04);
    }
    return fill;
}

} // namespace

Colours::Colours(const QPalette& palette) {
    page = palette.color(QPalette::Active, QPalette::Window);
    text = palette.color(QPalette::Active, QPalette::WindowText);
    dark = luminance(page) < luminance(text);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    // Dark palettes have fields darker than the page; a card lies above it.
    card = dark ? mixed(page, Qt::white, 0.05) : base;
    secondary = mixed(page, text, 0.66);
    disabled = mixed(page, text, 0.38);
    hairline = mixed(page, text, dark ? 0.2 : 0.15);
    control = dark ? mixed(page, Qt::white, 0.12) : base;
    controlPressed = mixed(control, text, 0.12);
    accent = readable(palette.color(QPalette::Active, QPalette::Highlight));
    onAccent = Qt::white;
    green = dark ? QColor(0x5c, 0xc9, 0x74) : QColor(0x24, 0x87, 0x3f);
    orange = dark ? QColor(0xf2, 0xa9, 0x3b) : QColor(0xb3, 0x66, 0x00);
    red = dark ? QColor(0xff, 0xa0, 0x96) : QColor(0xc0, 0x2b, 0x1d);
    scrim = QColor(0, 0, 0, dark ? 128 : 76);
}

QColor Colours::of(Tint tint) const {
    switch (tint) {
    case Tint::green:
        return green;
    case Tint::orange:
        return orange;
    case Tint::secondary:
        break;
    }
    return secondary;
}

} // namespace kelmar
