#pragma once

#include "ui/page.hpp"

#include <QColor>
#include <QPalette>

namespace kelmar {

/// The window's colours, made from the platform's palette, which decides between light and dark.
struct Colours {
    explicit Colours(const QPalette& palette);

    bool dark;
    QColor text;
    QColor secondary; ///< quieter text and symbols, readable on page and cards
    QColor disabled;
    QColor page;
    QColor card;
    QColor hairline;
    QColor control;        ///< the face of a button
    QColor controlPressed; ///< the same while it is held down
    QColor accent;         ///< the default button, what is switched on
    QColor onAccent;       ///< text on `accent`, readable
    QColor green;
    QColor orange;
    QColor red;
    QColor scrim; ///< laid over the page behind an alert

    [[nodiscard]] QColor of(Tint tint) const;
};

} // namespace kelmar
