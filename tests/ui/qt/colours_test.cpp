#include "ui/look.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/contrast.hpp"

#include <gtest/gtest.h>

#include <QPalette>
#include <string>
#include <vector>

namespace kelmar {
namespace {

struct Desktop {
    std::string name;
    QColor page;
    QColor text;
    QColor field;
};

const std::vector<Desktop> desktops{
    {"light", QColor(240, 240, 241), QColor(30, 30, 32), QColor(255, 255, 255)},
    {"dark", QColor(43, 45, 48), QColor(238, 239, 240), QColor(30, 31, 34)},
    {"grey", QColor(214, 210, 208), QColor(46, 52, 54), QColor(246, 245, 244)},
    {"dark blue", QColor(42, 46, 50), QColor(252, 252, 252), QColor(27, 30, 32)},
    {"white", Qt::white, Qt::black, Qt::white},
    {"black", Qt::black, Qt::white, Qt::black},
};

const std::vector<QColor> highlights{QColor(45, 125, 210), QColor(61, 174, 233),
                                     QColor(233, 84, 32),  QColor(255, 220, 0),
                                     QColor(20, 20, 120),  QColor(118, 118, 118)};

Colours coloursOf(const Desktop& desktop, const QColor& highlight) {
    QPalette palette;
    palette.setColor(QPalette::Window, desktop.page);
    palette.setColor(QPalette::WindowText, desktop.text);
    palette.setColor(QPalette::Base, desktop.field);
    palette.setColor(QPalette::Highlight, highlight);
    return Colours(palette);
}

/// Two colours that meet in the window.
struct Pair {
    const char* name;
    QColor one;
    QColor other;
    double ratio; ///< at least
};

std::vector<Pair> pairsOf(const Colours& colours) {
    constexpr double text = Look::textContrast;
    constexpr double control = Look::controlContrast;
    const QColor callout = colours.tinted(colours.orange);
    return {
        {"text on the page", colours.text, colours.page, text},
        {"text on a card", colours.text, colours.card, text},
        {"text on a callout", colours.text, callout, text},
        {"a button's text", colours.text, colours.control, text},
        {"a pressed button's text", colours.text, colours.controlPressed, text},
        {"quiet text on the page", colours.secondary, colours.page, text},
        {"quiet text on a card", colours.secondary, colours.card, text},
        {"the default button's text", colours.onAccent, colours.accent, text},
        {"the destructive button's text", colours.red, colours.control, text},
        {"the pressed destructive button's text", colours.red, colours.controlPressed, text},
        {"an unticked box on a card", colours.outline, colours.card, control},
        {"an unticked box and its inside", colours.outline, colours.control, control},
        {"a switch that is off on a card", colours.outline, colours.card, control},
        {"the knob of a switch that is off", colours.onAccent, colours.outline, control},
        {"a ticked box or a switch that is on", colours.switchedOn, colours.card, control},
        {"a tick or the knob of a switch that is on", colours.onAccent, colours.switchedOn,
         control},
        {"the focus ring on the page", colours.focusRing, colours.page, control},
        {"the focus ring on a card", colours.focusRing, colours.card, control},
        {"the scroll bar on the page", colours.scrollBar, colours.page, control},
        {"the scroll bar on a card", colours.scrollBar, colours.card, control},
        {"a green symbol on a card", colours.green, colours.card, control},
        {"the callout's symbol", colours.orange, callout, control},
    };
}

TEST(Contrast, IsWhatTheGuidelinesCompute) {
    EXPECT_DOUBLE_EQ(contrast(Qt::white, Qt::black), 21);
    EXPECT_DOUBLE_EQ(contrast(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(contrast(Qt::red, Qt::red), 1);
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

TEST(Contrast, OfEveryPairOfColoursInUseIsWhatPeopleNeed) {
    for (const Desktop& desktop : desktops) {
        for (const QColor& highlight : highlights) {
            for (const Pair& pair : pairsOf(coloursOf(desktop, highlight))) {
                EXPECT_GE(contrast(pair.one, pair.other), pair.ratio)
                    << pair.name << ": " << pair.one.name().toStdString() << " and "
                    << pair.other.name().toStdString() << " on a " << desktop.name
                    << " desktop that highlights in " << highlight.name().toStdString();
            }
        }
    }
}

} // namespace
} // namespace kelmar
