#include "ui/qt/push_button.hpp"

#include "ui/look.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"

#include <QPainter>
#include <algorithm>

namespace kelmar {

namespace {

bool isReturns(const Button& button) {
    return button.key == ButtonKey::defaultAction || button.key == ButtonKey::both;
}

} // namespace

PushButton::PushButton(Size size, QWidget* parent) : QPushButton(parent), size_(size) {
    setFont(fontOf(TextStyle::body));
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    setAccessibleRole(*this, QAccessible::Button);
}

void PushButton::render(const Button& button) {
    if (button == shown_ && !text().isEmpty()) {
        return;
    }
    if (button.action != shown_.action) {
        setDown(false); // a press that has begun was meant for what stood here before
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
    const Look::Padding padding = large ? Look::largeButton : Look::regularButton;
    const int width = metrics.horizontalAdvance(text()) + 2 * padding.sides;
    return {std::max(width, large ? Look::buttonWidth : 0) + 2 * Look::focusRoom,
            metrics.height() + 2 * padding.ends + 2 * Look::focusRoom};
}

void PushButton::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    const bool filled = isReturns(shown_) && isEnabled();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr qreal edge = Look::focusRoom + Look::hairline / 2.0; // the middle of the face's edge
    const QRectF face = QRectF(rect()).adjusted(edge, edge, -edge, -edge);
    QColor fill = filled ? colours.accent : colours.control;
    if (isDown()) {
        fill = filled ? colours.accent.darker(118) : colours.controlPressed;
    } else if (underMouse() && isEnabled()) {
        fill = filled ? colours.accent.darker(106) : fill.darker(colours.dark ? 92 : 103);
    }
    painter.setBrush(fill);
    painter.setPen(filled ? colours.accent.darker(112) : colours.hairline);
    painter.drawRoundedRect(face, Look::buttonRadius, Look::buttonRadius);

    painter.setPen(!isEnabled()         ? colours.disabled
                   : filled             ? colours.onAccent
                   : shown_.destructive ? colours.red
                                        : colours.text);
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (showsFocus(*this)) {
        paintFocusRing(painter, face, Look::buttonRadius, colours);
    }
}

} // namespace kelmar
