#include "ui/qt/toggle_switch.hpp"

#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"

#include <QPainter>

namespace kelmar {

namespace {

constexpr int trackWidth = 38;
constexpr int trackHeight = 22;

} // namespace

ToggleSwitch::ToggleSwitch(QWidget* parent) : QCheckBox(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ToggleSwitch::sizeHint() const {
    return {trackWidth + 2 * focusRoom, trackHeight + 2 * focusRoom};
}

bool ToggleSwitch::hitButton(const QPoint& point) const {
    return rect().contains(point);
}

void ToggleSwitch::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF track(focusRoom, focusRoom, trackWidth, trackHeight);
    const bool on = isChecked();
    painter.setPen(Qt::NoPen);
    painter.setBrush(on && isEnabled() ? colours.accent : colours.disabled);
    painter.drawRoundedRect(track, trackHeight / 2.0, trackHeight / 2.0);
    const qreal knob = trackHeight - 4;
    const qreal left = on ? track.right() - 2 - knob : track.left() + 2;
    painter.setBrush(isDown() ? QColor(0xe8, 0xe8, 0xe8) : QColor(Qt::white));
    painter.drawEllipse(QRectF(left, track.top() + 2, knob, knob));
    if (showsFocus(*this)) {
        paintFocusRing(painter, track, trackHeight / 2.0, colours);
    }
}

} // namespace kelmar
