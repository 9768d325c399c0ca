#include "ui/qt/disclosure.hpp"

#include "ui/look.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/symbols.hpp"
#include "ui/texts.hpp"

#include <QAccessible>
#include <QPainter>

namespace kelmar {

namespace {

int chevronSide() {
    return grown(Look::disclosureChevron);
}

/// The left edge of the drawn chevron, without the room for the focus ring.
int chevronLeft() {
    return Look::focusRoom - grown(Look::disclosureBearing);
}

int captionLeft() {
    return chevronLeft() + chevronSide() + Look::disclosureGap;
}

constexpr int slack = 4; ///< right of the text, and above and below it together

} // namespace

Disclosure::Disclosure(QWidget* parent) : QPushButton(parent) {
    setFont(fontOf(TextStyle::body));
    setAutoDefault(false);
    setFlat(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleRole(*this, QAccessible::Button);
    setAccessiblyExpanded(*this, unfolded_);
}

void Disclosure::render(const Button& button, bool unfolded) {
    setText(QString::fromStdString(button.text));
    if (unfolded != unfolded_) {
        unfolded_ = unfolded;
        setAccessiblyExpanded(*this, unfolded);
        update();
    }
}

QSize Disclosure::sizeHint() const {
    const QFontMetrics metrics(font());
    return {captionLeft() + metrics.horizontalAdvance(text()) + slack + Look::focusRoom,
            metrics.height() + slack + 2 * Look::focusRoom};
}

void Disclosure::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    const int chevron = chevronSide();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPixmap(chevronLeft(), (height() - chevron) / 2,
                       symbol(unfolded_ ? "chevron.down" : "chevron.right",
                              isDown() ? colours.text : colours.secondary, chevron,
                              devicePixelRatioF()));
    painter.setPen(colours.text);
    painter.drawText(rect().adjusted(captionLeft(), 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                     text());
    if (showsFocus(*this)) {
        constexpr int room = Look::focusRoom;
        paintFocusRing(painter, QRectF(rect()).adjusted(room, room, -room, -room),
                       Look::controlRadius, colours);
    }
}

} // namespace kelmar
