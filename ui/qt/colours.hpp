#pragma once

#include "ui/page.hpp"

#include <QColor>
#include <QPalette>
#include <QWidget>

namespace kelmar {

/// The window's colours, computed from the platform's palette, which decides between light and
/// dark. Main thread only.
struct Colours {
    explicit Colours(const QPalette& palette);

    bool dark = false;
    QColor text;
    QColor secondary; ///< quieter text and symbols, readable on page and cards
    QColor disabled;
    QColor page;
    QColor card;
    QColor hairline;
    QColor outline;        ///< outline of a control that has no other edge; the switch when off
    QColor scrollBar;      ///< the scroll bar's handle
    QColor control;        ///< the face of a button
    QColor controlPressed; ///< the same while it is held down
    QColor accent;         ///< the default button
    QColor onAccent;       ///< text on `accent`, readable; drawings on `switchedOn`
    QColor switchedOn;     ///< a box that is ticked, a switch that is on
    QColor focusRing;
    QColor green;
    QColor orange;
    QColor red;
    QColor scrim; ///< laid over the page behind an alert

    [[nodiscard]] QColor of(Tint tint) const;

    /// The background of a tinted card.
    [[nodiscard]] QColor tinted(const QColor& tint) const;

private:
    Colours() = default;
    void compute(const QPalette& palette);
};

/// Returns true if a control must be drawn as disabled. A control behind a question is not: the
/// question dims the whole page.
inline bool isGreyed(const QWidget& control) {
    return control.testAttribute(Qt::WA_ForceDisabled);
}

} // namespace kelmar
