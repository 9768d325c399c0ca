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

constexpr int box = Look::checkBox;
constexpr int textLeft = Look::focusRoom + box + Look::partGap;
constexpr double half = Look::hairline / 2.0; ///< to the middle of the box's edge

} // namespace

CheckBox::CheckBox(QWidget* parent) : Choice(parent) {
    setFont(fontOf(TextStyle::body));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CheckBox::sizeHint() const {
    const QFontMetrics metrics(font());
    return {textLeft + metrics.horizontalAdvance(text()) + Look::focusRoom,
            2 * Look::focusRoom + std::max(box, metrics.height())};
}

void CheckBox::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF square(Look::focusRoom + half, std::floor((height() - box) / 2.0) + half,
                        box - Look::hairline, box - Look::hairline);
    const bool on = isChecked();
    painter.setBrush(on ? (isDown() ? colours.switchedOn.darker(118) : colours.switchedOn)
                        : (isDown() ? colours.controlPressed : colours.control));
    painter.setPen(on ? colours.switchedOn : colours.outline);
    painter.drawRoundedRect(square, Look::controlRadius, Look::controlRadius);
    if (on) {
        painter.drawPixmap(square.topLeft() - QPointF(half, half),
                           symbol("checkmark", colours.onAccent, box, devicePixelRatioF()));
    }
    painter.setPen(isEnabled() ? colours.text : colours.disabled);
    painter.drawText(rect().adjusted(textLeft, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text());
    if (showsFocus(*this)) {
        paintFocusRing(painter, square, Look::controlRadius, colours);
    }
}

} // namespace kelmar
