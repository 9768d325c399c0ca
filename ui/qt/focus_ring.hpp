#pragma once

#include "ui/qt/colours.hpp"

#include <QPainter>
#include <QRectF>
#include <QWidget>

namespace kelmar {

/// Returns true if `widget` must show that it has the focus: once the keyboard has moved it. Mouse
/// users need no ring.
bool showsFocus(const QWidget& widget);

/// Draws the ring of the control that has the keyboard's focus.
void paintFocusRing(QPainter& painter, const QRectF& around, qreal radius, const Colours& colours);

} // namespace kelmar
