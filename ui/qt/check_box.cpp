#include "ui/qt/check_box.hpp"

#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/symbols.hpp"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace kelmar {

namespace {

constexpr int box = 16;
constexpr int gap = 8;
constexpr qreal radius = 4;

} // namespace

CheckBox::CheckBox(QWidget* parent) : QCheckBox(parent) {
    setFont(kelmar::font(TextStyle::body));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CheckBox::sizeHint() const {
    const QFontMetrics metrics(font());
    return {2 * focusRoom + box + gap + metrics.horizontalAdvance(text()),
            2 * focusRoom + std::max(box, metrics.height())};
}

bool CheckBox::hitButton(const QPoint& point) const {
    return rect().contains(point);
}

void CheckBox::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF square(focusRoom + 0.5, std::floor((height() - box) / 2.0) + 0.5, box - 1,
                        box - 1);
    const bool on = isChecked();
    painter.setBrush(on ? (isDown() ? colours.accent.darker(118) : colours.accent)
                        : (isDown() ? colours.controlPressed : colours.control));
    painter.setPen(on ? colours.accent.darker(112) : colours.disabled);
    painter.drawRoundedRect(square, radius, radius);
    if (on) {
        painter.drawPixmap(square.topLeft() - QPointF(0.5, 0.5),
                           symbol("checkmark", colours.onAccent, box, devicePixelRatioF()));
    }
    painter.setPen(isEnabled() ? colours.text : colours.disabled);
    painter.drawText(rect().adjusted(focusRoom + box + gap, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, text());
    if (showsFocus(*this)) {
        paintFocusRing(painter, square, radius, colours);
    }
}

} // namespace kelmar
