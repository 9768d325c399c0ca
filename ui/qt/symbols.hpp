#pragma once

#include <QColor>
#include <QPixmap>
#include <string>

namespace kelmar {

/// The symbol `name` in one colour, `side` points wide and high, sharp on a screen with `ratio`
/// pixels per point. Cached; empty if there is no such symbol.
QPixmap symbol(const std::string& name, const QColor& colour, int side, qreal ratio);

/// A picture in its own colours: "kelmar-uninstaller", "kelmar-app".
QPixmap picture(const std::string& name, int side, qreal ratio);

} // namespace kelmar
