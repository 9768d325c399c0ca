#include "ui/qt/disclosure.hpp"

#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/symbols.hpp"

#include <QAccessible>
#include <QPainter>

namespace kelmar {

namespace {

constexpr int chevron = 14;
constexpr int gap = 4;

} // namespace

Disclosure::Disclosure(QWidget* parent) : QPushButton(parent) {
    setFont(kelmar::font(TextStyle::body));
    setAutoDefault(false);
    setFlat(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Disclosure::render(const Button& button, bool unfolded) {
    setText(QString::fromStdString(button.text));
    if (unfolded != unfolded_) {
        unfolded_ = unfolded;
        setAccessibleDescription(unfolded ? "Unfolded" : "Folded");
        update();
    }
}

QSize Disclosure::sizeHint() const {
    const QFontMetrics metrics(font());
    return {chevron + gap + metrics.horizontalAdvance(text()) + 2 * focusRoom + 4,
            metrics.height() + 4 + 2 * focusRoom};
}

void Disclosure::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int left = focusRoom;
    painter.drawPixmap(left, (height() - chevron) / 2,
                       symbol(unfolded_ ? "chevron.down" : "chevron.right",
                              isDown() ? colours.text : colours.secondary, chevron,
                              devicePixelRatioF()));
    painter.setPen(colours.text);
    painter.drawText(rect().adjusted(left + chevron + gap, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, text());
    if (showsFocus(*this)) {
        paintFocusRing(painter,
                       QRectF(rect()).adjusted(focusRoom, focusRoom, -focusRoom, -focusRoom), 4,
                       colours);
    }
}

} // namespace kelmar
