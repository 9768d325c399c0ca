#include "ui/qt/focus_ring.hpp"

#include "ui/look.hpp"

namespace kelmar {

bool showsFocus(const QWidget& widget) {
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void paintFocusRing(QPainter& painter, const QRectF& around, qreal radius, const Colours& colours) {
    painter.setBrush(Qt::NoBrush);
    constexpr int width = Look::focusRing;
    painter.setPen(QPen(colours.focusRing, width));
    painter.drawRoundedRect(around.adjusted(-width, -width, width, width), radius + width,
                            radius + width);
}

} // namespace kelmar
