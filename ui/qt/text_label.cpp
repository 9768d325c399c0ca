#include "ui/qt/text_label.hpp"

#include "ui/drawn_text.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/tool_tip.hpp"

#include <QAbstractButton>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace kelmar {

namespace {

constexpr int leastWidth = 16;       ///< minimum that a layout may give a label
constexpr int elidedLines = 2;       ///< a longer text loses its middle
constexpr std::size_t mostSizes = 8; ///< a layout asks for no more widths at a time

} // namespace

/// Lays `layout` out in lines of `width` and returns its height.
double TextLabel::layOut(QTextLayout& layout, double width) const {
    QTextOption option(alignment());
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

TextLabel::TextLabel(TextStyle style, TextTone tone, Overflow overflow, QWidget* parent)
    : QLabel(parent),
      tone_(tone),
      overflow_(overflow) {
    setTextFormat(Qt::PlainText);
    setFont(fontOf(style));
    setAccessibleRole(*this, QAccessible::StaticText);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(overflow == Overflow::wrap);
    setSizePolicy(policy);
}

void TextLabel::showText(const std::string& text) {
    const QString wanted = QString::fromStdString(text);
    if (wanted != this->text()) {
        setText(wanted);
        forgetSizes();
        updateGeometry();
        explainElision();
        if (button_ != nullptr) {
            button_->setAccessibleName(wanted);
        }
    }
}

void TextLabel::nameFor(QAbstractButton* button) {
    button_ = button;
    button->setAccessibleName(text());
    hideFromScreenReaders(*this);
}

void TextLabel::setTone(TextTone tone) {
    if (tone != tone_) {
        tone_ = tone;
        update();
    }
}

QString TextLabel::drawn() const {
    return QString::fromStdString(drawnText(text().toStdString()));
}

void TextLabel::forgetSizes() {
    hint_.reset();
    sizes_.clear();
}

QSize TextLabel::sizeHint() const {
    if (hint_) {
        return *hint_;
    }
    const QFontMetrics metrics(font());
    // Measured by the layout that draws it: at fractional scales, whole units differ.
    QTextLayout layout(drawn(), font());
    const double height = layOut(layout, QWIDGETSIZE_MAX);
    const int lines = overflow_ == Overflow::elideMiddle ? elidedLines : 1;
    hint_.emplace(static_cast<int>(std::ceil(layout.maximumWidth())) + 1,
                  lines * std::max(static_cast<int>(height), metrics.height()));
    return *hint_;
}

QSize TextLabel::minimumSizeHint() const {
    return {leastWidth, overflow_ == Overflow::elideMiddle ? sizeHint().height()
                                                           : QFontMetrics(font()).height()};
}

bool TextLabel::hasHeightForWidth() const {
    return overflow_ == Overflow::wrap;
}

int TextLabel::heightForWidth(int width) const {
    if (overflow_ != Overflow::wrap) {
        return -1;
    }
    const auto known = std::find_if(sizes_.begin(), sizes_.end(),
                                    [width](const QSize& size) { return size.width() == width; });
    if (known != sizes_.end()) {
        return known->height();
    }
    QTextLayout layout(drawn(), font());
    const auto height = static_cast<int>(std::ceil(layOut(layout, width)));
    if (sizes_.size() == mostSizes) {
        sizes_.clear();
    }
    sizes_.emplace_back(width, std::max(height, QFontMetrics(font()).height()));
    return sizes_.back().height();
}

int TextLabel::lines(const QString& text, int width) const {
    QTextLayout layout(text, font());
    layOut(layout, width);
    return layout.lineCount();
}

QString TextLabel::elided() const {
    const QString whole = drawn();
    const QFontMetrics metrics(font());
    QString shown = whole;
    // Each line that breaks at a word leaves some of its width unused, so try smaller totals.
    const int step = std::max(1, width() / 16);
    for (int room = elidedLines * width(); room > step && lines(shown, width()) > elidedLines;
         room -= step) {
        shown = metrics.elidedText(whole, Qt::ElideMiddle, room);
    }
    return shown;
}

void TextLabel::paintEvent(QPaintEvent* /*event*/) {
    const Colours colours(palette());
    QPainter painter(this);
    painter.setPen(tone_ == TextTone::primary ? colours.text : colours.secondary);
    const bool elides = overflow_ == Overflow::elideMiddle;
    QTextLayout layout(elides ? elided() : drawn(), font());
    const double height = layOut(layout, width());
    const double above = elides ? 0 : std::max(0.0, std::floor((rect().height() - height) / 2));
    layout.draw(&painter, {0, above}, selections());
}

int TextLabel::placeAt(const QPoint& point) const {
    QTextLayout layout(drawn(), font());
    const double above = std::max(0.0, std::floor((rect().height() - layOut(layout, width())) / 2));
    for (int number = 0; number < layout.lineCount(); ++number) {
        const QTextLine line = layout.lineAt(number);
        if (point.y() - above < line.y() + line.height() || number + 1 == layout.lineCount()) {
            return line.xToCursor(point.x());
        }
    }
    return 0;
}

void TextLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    explainElision();
}

bool TextLabel::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && !toolTip().isEmpty()) {
        showToolTip(*this, static_cast<const QHelpEvent&>(*event));
        return true;
    }
    return QLabel::event(event);
}

void TextLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        forgetSizes();
    }
    QLabel::changeEvent(event);
}

void TextLabel::explainElision() {
    if (overflow_ == Overflow::elideMiddle) {
        setToolTip(lines(drawn(), width()) > elidedLines ? text() : QString());
    }
}

void TextLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (button_ != nullptr && event->button() == Qt::LeftButton && rect().contains(event->pos())) {
        button_->click();
    } else {
        QLabel::mouseReleaseEvent(event);
    }
}

} // namespace kelmar
