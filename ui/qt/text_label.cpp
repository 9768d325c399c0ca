#include "ui/qt/text_label.hpp"

#include "system/text/harmless_text.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/fonts.hpp"

#include <QAbstractButton>
#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace kelmar {

namespace {

constexpr int leastWidth = 16; ///< that a layout may give a label

/// Lays `text` out in lines of `width`; the height that they take.
double layOut(QTextLayout& layout, double width) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LeftToRight); // a sentence that names a file is still a sentence
    layout.setTextOption(option);
    layout.beginLayout();
    double height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += std::ceil(line.height());
    }
    layout.endLayout();
    return height;
}

} // namespace

TextLabel::TextLabel(TextStyle style, TextTone tone, Overflow overflow, QWidget* parent)
    : QLabel(parent),
      tone_(tone),
      overflow_(overflow) {
    setTextFormat(Qt::PlainText);
    setFont(fontOf(style));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(overflow == Overflow::wrap);
    setSizePolicy(policy);
}

void TextLabel::showText(const std::string& text) {
    const QString wanted = QString::fromStdString(text);
    if (wanted != this->text()) {
        setText(wanted);
        measuredWidth_ = -1;
        updateGeometry();
        explainElision();
    }
}

void TextLabel::nameFor(QAbstractButton* button) {
    setBuddy(button);
}

QString TextLabel::drawn() const {
    return QString::fromStdString(harmlessText(text().toStdString()));
}

QSize TextLabel::sizeHint() const {
    const QFontMetrics metrics(font());
    return {metrics.horizontalAdvance(drawn()) + 1, metrics.height()};
}

QSize TextLabel::minimumSizeHint() const {
    return {leastWidth, QFontMetrics(font()).height()};
}

bool TextLabel::hasHeightForWidth() const {
    return overflow_ == Overflow::wrap;
}

int TextLabel::heightForWidth(int width) const {
    if (overflow_ != Overflow::wrap) {
        return -1;
    }
    if (width != measuredWidth_) {
        QTextLayout layout(drawn(), font());
        const auto height = static_cast<int>(std::ceil(layOut(layout, width)));
        measuredHeight_ = std::max(height, QFontMetrics(font()).height());
        measuredWidth_ = width;
    }
    return measuredHeight_;
}

void TextLabel::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setPen(!isEnabled()                 ? colours.disabled
                   : tone_ == TextTone::primary ? colours.text
                                                : colours.secondary);
    if (overflow_ == Overflow::elideMiddle) {
        const QFontMetrics metrics(font());
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextForceLeftToRight,
                         metrics.elidedText(drawn(), Qt::ElideMiddle, width()));
        return;
    }
    QTextLayout layout(drawn(), font());
    const double height = layOut(layout, width());
    layout.draw(&painter, {0, std::max(0.0, std::floor((rect().height() - height) / 2))});
}

void TextLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    explainElision();
}

void TextLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        measuredWidth_ = -1;
    }
    QLabel::changeEvent(event);
}

void TextLabel::explainElision() {
    if (overflow_ == Overflow::elideMiddle) {
        setToolTip(sizeHint().width() > width() + 1 ? drawn().toHtmlEscaped() : QString());
    }
}

void TextLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (auto* const button = qobject_cast<QAbstractButton*>(buddy());
        button != nullptr && event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        button->click();
    } else {
        QLabel::mouseReleaseEvent(event);
    }
}

} // namespace kelmar
