#include "ui/qt/card.hpp"

#include "ui/qt/colours.hpp"

#include <QPainter>

namespace kelmar {

Card::Card(QWidget* parent) : QFrame(parent), rows_(new QVBoxLayout(this)) {
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(0);
}

void Card::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colours.card);
    painter.setPen(colours.hairline);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 10, 10);
}

Hairline::Hairline(int indent, QWidget* parent) : QFrame(parent), indent_(indent) {
    setFixedHeight(1);
}

void Hairline::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect().adjusted(indent_, 0, 0, 0), Colours(palette()).hairline);
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
