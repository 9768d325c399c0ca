#pragma once

#include <QColor>
#include <initializer_list>

namespace kelmar {

/// The contrast ratio of two opaque colours, from 1 to 21, as WCAG 2.1 defines it.
double contrast(const QColor& one, const QColor& other);

/// Blends `share` of `over` onto `under`.
QColor mixed(const QColor& under, const QColor& over, double share);

/// `colour`, moved towards `end` until its contrast to every one of `grounds` is at least `ratio`;
/// `end` itself if no colour before it suffices.
QColor standingOut(QColor colour, const QColor& end, double ratio,
                   std::initializer_list<QColor> grounds);

} // namespace kelmar
