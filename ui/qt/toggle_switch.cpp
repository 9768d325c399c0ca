#include "ui/qt/toggle_switch.hpp"

#include "ui/look.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"

#include <QPainter>

namespace kelmar {

namespace {

constexpr qreal radius = Look::switchHeight / 2.0;
constexpr int knobInset = 2; ///< between the track's edge and the knob
constexpr int knob = Look::switchHeight - 2 * knobInset;

} // namespace

ToggleSwitch::ToggleSwitch(QWidget* parent) : Choice(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ToggleSwitch::sizeHint() const {
    return {Look::switchWidth + 2 * Look::focusRoom, Look::switchHeight + 2 * Look::focusRoom};
}

void ToggleSwitch::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF track(Look::focusRoom, Look::focusRoom, Look::switchWidth, Look::switchHeight);
    const bool on = isChecked();
    painter.setPen(Qt::NoPen);
    painter.setBrush(isGreyed(*this) ? colours.disabled
                     : on            ? colours.switchedOn
                                     : colours.outline);
    painter.drawRoundedRect(track, radius, radius);
    const qreal left = on ? track.right() - knobInset - knob : track.left() + knobInset;
    painter.setBrush(isDown() ? QColor(0xe8, 0xe8, 0xe8) : QColor(Qt::white));
    painter.drawEllipse(QRectF(left, track.top() + knobInset, knob, knob));
    if (showsFocus(*this)) {
        paintFocusRing(painter, track, radius, colours);
    }
}

} // namespace kelmar
