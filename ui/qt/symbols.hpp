#pragma once

#include <QColor>
#include <QPixmap>
#include <string>

namespace kelmar {

/// The symbol of that name, all in one colour, `side` units of the window wide and high, sharp on
/// a screen with `ratio` pixels a unit. Drawn once; empty when there is none of that name.
QPixmap symbol(const std::string& name, const QColor& colour, int side, qreal ratio);

/// A picture in its own colours: "kelmar-uninstaller", "kelmar-app".
QPixmap picture(const std::string& name, int side, qreal ratio);

} // namespace kelmar
