#include "ui/qt/size_label.hpp"

#include "ui/qt/accessibility.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/fonts.hpp"

#include <QPainter>
#include <algorithm>

namespace kelmar {

namespace {

int digitWidth(const QFontMetrics& metrics) {
    int widest = 0;
    for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
        widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
    }
    return widest;
}

int advance(const QFontMetrics& metrics, QChar character) {
    return character.isDigit() ? digitWidth(metrics) : metrics.horizontalAdvance(character);
}

} // namespace

SizeLabel::SizeLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setFont(fontOf(TextStyle::size));
    setAccessibleRole(*this, QAccessible::StaticText);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SizeLabel::render(const SizeText& size) {
    const QString wanted = QString::fromStdString(size.text());
    if (wanted != text()) {
        setText(wanted);
        updateGeometry();
    }
    setAccessibleName(QString::fromStdString(size.accessibleName()));
}

QSize SizeLabel::sizeHint() const {
    const QFontMetrics metrics(font());
    int width = 0;
    for (const QChar character : text()) {
        width += advance(metrics, character);
    }
    return {width, metrics.height()};
}

void SizeLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const Colours colours(palette());
    painter.setPen(colours.secondary);
    const QFontMetrics metrics(font());
    int left = width() - sizeHint().width();
    for (const QChar character : text()) {
        const int cell = advance(metrics, character);
        painter.drawText(QRect(left, 0, cell, height()), Qt::AlignHCenter | Qt::AlignVCenter,
                         character);
        left += cell;
    }
}

} // namespace kelmar
