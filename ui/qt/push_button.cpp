#include "ui/qt/push_button.hpp"

#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"

#include <QPainter>
#include <algorithm>

namespace kelmar {

namespace {

constexpr qreal radius = 6;

bool isReturns(const Button& button) {
    return button.key == ButtonKey::defaultAction || button.key == ButtonKey::both;
}

} // namespace

PushButton::PushButton(Size size, QWidget* parent) : QPushButton(parent), size_(size) {
    setFont(kelmar::font(TextStyle::body));
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void PushButton::render(const Button& button) {
    if (button == shown_ && !text().isEmpty()) {
        return;
    }
    shown_ = button;
    setText(QString::fromStdString(button.text));
    setEnabled(button.enabled);
    updateGeometry();
    update();
}

QSize PushButton::sizeHint() const {
    const QFontMetrics metrics(font());
    const bool large = size_ == Size::large;
    const int width = metrics.horizontalAdvance(text()) + (large ? 36 : 24);
    return {std::max(width, large ? 88 : 0) + 2 * focusRoom,
            metrics.height() + (large ? 14 : 8) + 2 * focusRoom};
}

void PushButton::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    const bool filled = isReturns(shown_) && isEnabled();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF face = QRectF(rect()).adjusted(focusRoom + 0.5, focusRoom + 0.5, -focusRoom - 0.5,
                                                -focusRoom - 0.5);
    QColor fill = filled ? colours.accent : colours.control;
    if (isDown()) {
        fill = filled ? colours.accent.darker(118) : colours.controlPressed;
    } else if (underMouse() && isEnabled()) {
        fill = filled ? colours.accent.darker(106) : fill.darker(colours.dark ? 92 : 103);
    }
    painter.setBrush(fill);
    painter.setPen(filled ? colours.accent.darker(112) : colours.hairline);
    painter.drawRoundedRect(face, radius, radius);

    painter.setPen(!isEnabled()         ? colours.disabled
                   : filled             ? colours.onAccent
                   : shown_.destructive ? colours.red
                                        : colours.text);
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (showsFocus(*this)) {
        paintFocusRing(painter, face, radius, colours);
    }
}

} // namespace kelmar
