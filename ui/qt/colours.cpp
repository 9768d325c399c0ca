#include "ui/qt/colours.hpp"

#include "ui/look.hpp"
#include "ui/qt/contrast.hpp"

namespace kelmar {

namespace {

constexpr double forText = Look::textContrast;
constexpr double forControls = Look::controlContrast;

} // namespace

Colours::Colours(const QPalette& palette) {
    // A cache of one palette: every paint needs the colours, and nearly all widgets share a
    // palette.
    static qint64 key = 0;
    static Colours latest;
    if (palette.cacheKey() != key) {
        latest.compute(palette);
        key = palette.cacheKey();
    }
    *this = latest;
}

void Colours::compute(const QPalette& palette) {
    page = palette.color(QPalette::Active, QPalette::Window);
    text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor white = Qt::white;
    dark = contrast(page, white) > contrast(text, white);
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    // In dark palettes, fields are darker than the page; a card must be lighter.
    card = dark ? mixed(page, white, 0.05) : base;
    control = dark ? mixed(page, white, 0.12) : base;
    controlPressed = mixed(control, text, 0.12);
    secondary = standingOut(mixed(page, text, 0.66), text, forText, {page, card});
    disabled = mixed(page, text, 0.38);
    hairline = mixed(page, text, dark ? 0.2 : 0.15);
    outline = standingOut(mixed(page, text, 0.45), text, forControls, {page, card, control});
    scrollBar = outline;
    const QColor highlight = palette.color(QPalette::Active, QPalette::Highlight);
    onAccent = white;
    accent = standingOut(highlight, Qt::black, forText, {onAccent});
    // A tick needs less contrast than text, and on a dark card a box dark enough for text would be
    // hard to see.
    switchedOn = standingOut(accent, white, forControls, {page, card});
    focusRing = standingOut(accent, dark ? white : QColor(Qt::black), forControls, {page, card});
    green = standingOut(dark ? QColor(0x5c, 0xc9, 0x74) : QColor(0x24, 0x87, 0x3f), text,
                        forControls, {page, card});
    const QColor amber = dark ? QColor(0xf2, 0xa9, 0x3b) : QColor(0xb3, 0x66, 0x00);
    orange = standingOut(amber, text, forControls, {page, card, tinted(amber)});
    red = standingOut(dark ? QColor(0xff, 0xa0, 0x96) : QColor(0xc0, 0x2b, 0x1d), text, forText,
                      {control, controlPressed});
    scrim = QColor(0, 0, 0, dark ? 128 : 76);
}

QColor Colours::tinted(const QColor& tint) const {
    // At full saturation: a colour dark enough for a symbol would make a light background look
    // dirty.
    return mixed(card, QColor::fromHsv(tint.hue(), 255, 255), Look::tintedGround);
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
