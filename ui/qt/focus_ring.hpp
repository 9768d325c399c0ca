#pragma once

#include "ui/qt/colours.hpp"

#include <QPainter>
#include <QRectF>
#include <QWidget>

namespace kelmar {

/// Whether `widget` is to show that it has the focus: once the keyboard has been used to move it.
/// Who works with the mouse needs no ring.
bool showsFocus(const QWidget& widget);

/// The ring around the control that has the keyboard's focus.
void paintFocusRing(QPainter& painter, const QRectF& around, qreal radius, const Colours& colours);

} // namespace kelmar
