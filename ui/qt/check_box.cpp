#include "ui/qt/check_box.hpp"

#include "ui/look.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/symbols.hpp"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace kelmar {

namespace {

int boxSide() {
    return grown(Look::checkBox);
}

int textLeft() {
    return Look::focusRoom + boxSide() + Look::partGap;
}

constexpr double half = Look::hairline / 2.0; ///< to the middle of the box's edge

} // namespace

CheckBox::CheckBox(QWidget* parent) : Choice(parent) {
    setFont(fontOf(TextStyle::body));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CheckBox::sizeHint() const {
    const QFontMetrics metrics(font());
    return {textLeft() + metrics.horizontalAdvance(text()) + Look::focusRoom,
            2 * Look::focusRoom + std::max(boxSide(), metrics.height())};
}

void CheckBox::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int box = boxSide();
    const QRectF square(Look::focusRoom + half, std::floor((height() - box) / 2.0) + half,
                        box - Look::hairline, box - Look::hairline);
    const bool on = isChecked();
    const QColor filled = isGreyed(*this) ? colours.disabled : colours.switchedOn;
    painter.setBrush(on ? (isDown() ? filled.darker(118) : filled)
                        : (isDown() ? colours.controlPressed : colours.control));
    painter.setPen(on ? filled : isGreyed(*this) ? colours.disabled : colours.outline);
    painter.drawRoundedRect(square, Look::controlRadius, Look::controlRadius);
    if (on) {
        painter.drawPixmap(square.topLeft() - QPointF(half, half),
                           symbol("checkmark", colours.onAccent, box, devicePixelRatioF()));
    }
    painter.setPen(isGreyed(*this) ? colours.disabled : colours.text);
    painter.drawText(rect().adjusted(textLeft(), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     text());
    if (showsFocus(*this)) {
        paintFocusRing(painter, square, Look::controlRadius, colours);
    }
}

} // namespace kelmar
