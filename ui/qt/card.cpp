#include "ui/qt/card.hpp"

#include "ui/look.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/fonts.hpp"

#include <QPainter>

namespace kelmar {

Card::Card(QWidget* parent) : QFrame(parent), rows_(new QVBoxLayout(this)) {
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(0);
}

void Card::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    paintCard(*this, colours.card, colours.hairline);
}

void paintCard(QWidget& widget, const QColor& ground, const QColor& edge) {
    paintCard(widget, QRectF(widget.rect()), ground, edge);
}

void paintCard(QWidget& widget, const QRectF& place, const QColor& ground, const QColor& edge) {
    constexpr qreal middle = Look::hairline / 2.0; // centre of the line around the card
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(ground);
    painter.setPen(edge);
    painter.drawRoundedRect(place.adjusted(middle, middle, -middle, -middle), Look::cardRadius,
                            Look::cardRadius);
}

Hairline::Hairline(int indent, QWidget* parent) : QFrame(parent), indent_(indent) {
    setFixedHeight(Look::hairline);
}

void Hairline::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect().adjusted(indent_, 0, 0, 0), Colours(palette()).hairline);
}

int rowTextIndent() {
    return Look::cardPadding + grown(Look::rowIcons.width) + Look::rowIcons.gap;
}

QVBoxLayout& layOutRow(QWidget& row, bool first, int indent) {
    auto* const column = new QVBoxLayout(&row);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    if (!first) {
        column->addWidget(new Hairline(indent));
    }
    return *column;
}

} // namespace kelmar
