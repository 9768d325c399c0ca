#include "ui/qt/push_button.hpp"

#include "ui/look.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"

#include <QPainter>
#include <algorithm>

namespace kelmar {

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
        setDown(false); // a press that has begun was meant for the old action
    }
    shown_ = button;
    setText(QString::fromStdString(button.text));
    setEnabled(button.enabled);
    updateGeometry();
    update();
}

void PushButton::setHighlighted(bool highlighted) {
    if (highlighted != highlighted_) {
        highlighted_ = highlighted;
        update();
    }
}

Look::Padding PushButton::padding() const {
    return size_ == Size::large ? Look::largeButton : Look::regularButton;
}

int PushButton::textRoom() const {
    return maximumWidth() - 2 * (padding().sides + Look::focusRoom);
}

bool PushButton::wraps() const {
    return QFontMetrics(font()).horizontalAdvance(text()) > textRoom();
}

QSize PushButton::sizeHint() const {
    const QFontMetrics metrics(font());
    const QSize words = wraps() ? metrics
                                      .boundingRect(QRect(0, 0, textRoom(), QWIDGETSIZE_MAX),
                                                    Qt::AlignCenter | Qt::TextWordWrap, text())
                                      .size()
                                : QSize(metrics.horizontalAdvance(text()), metrics.height());
    const int least = size_ == Size::large ? Look::buttonWidth : 0;
    return {std::max(words.width() + 2 * padding().sides, least) + 2 * Look::focusRoom,
            words.height() + 2 * padding().ends + 2 * Look::focusRoom};
}

void PushButton::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    const bool filled = highlighted_ && !isGreyed(*this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr qreal edge = Look::focusRoom + Look::hairline / 2.0; // centre of the face's outline
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

    painter.setPen(isGreyed(*this)      ? colours.disabled
                   : filled             ? colours.onAccent
                   : shown_.destructive ? colours.red
                                        : colours.text);
    // Wraps only if it must: at fractional scales a line may be wider than measured.
    const int flags = Qt::AlignCenter | (wraps() ? Qt::TextWordWrap : 0);
    const int sides = padding().sides;
    painter.drawText(wraps() ? rect().adjusted(sides, 0, -sides, 0) : rect(), flags, text());
    if (showsFocus(*this)) {
        paintFocusRing(painter, face, Look::buttonRadius, colours);
    }
}

} // namespace kelmar
