#pragma once

#include "ui/page.hpp"

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace kelmar {

/// The window's colours, made from the platform's palette, which decides between light and dark. On
/// the main thread only.
struct Colours {
    explicit Colours(const QPalette& palette);

    bool dark = false;
    QColor text;
    QColor secondary; ///< quieter text and symbols, readable on page and cards
    QColor disabled;
    QColor page;
    QColor card;
    QColor hairline;
    QColor outline; ///< around a control that nothing else shows the place of; the switch when off
    QColor scrollBar;      ///< the handle
    QColor control;        ///< the face of a button
    QColor controlPressed; ///< the same while it is held down
    QColor accent;         ///< the default button
    QColor onAccent;       ///< text on `accent`, readable; what is drawn on `switchedOn`
    QColor switchedOn;     ///< a box that is ticked, a switch that is on
    QColor focusRing;
    QColor green;
    QColor orange;
    QColor red;
    QColor scrim; ///< laid over the page behind an alert

    [[nodiscard]] QColor of(Tint tint) const;

    /// The ground of a card that is tinted.
    [[nodiscard]] QColor tinted(const QColor& tint) const;

private:
    Colours() = default;
    void compute(const QPalette& palette);
};

/// Whether a control is to be drawn as one that can't be pressed. What only lies below a question
/// is not: the question dims all of it.
inline bool isGreyed(const QWidget& control) {
    return control.testAttribute(Qt::WA_ForceDisabled);
}

} // namespace kelmar
