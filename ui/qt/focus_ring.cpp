#include "ui/qt/focus_ring.hpp"

namespace kelmar {

bool showsFocus(const QWidget& widget) {
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void paintFocusRing(QPainter& painter, const QRectF& around, qreal radius, const Colours& colours) {
    QColor ring = colours.accent;
    if (colours.dark) {
        ring = ring.lighter(150);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ring, 2));
    painter.drawRoundedRect(around.adjusted(-2, -2, 2, 2), radius + 2, radius + 2);
}

} // namespace kelmar
