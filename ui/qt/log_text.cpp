#include "ui/qt/log_text.hpp"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace kelmar {

namespace {

double widestOf(const QFontMetricsF& metrics) {
    double widest = 0;
    for (char16_t character = u' '; character <= u'~'; ++character) {
        widest = std::max(widest, metrics.horizontalAdvance(QChar(character)));
    }
    return widest;
}

bool isAscii(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar each) { return each.unicode() < 0x80; });
}

} // namespace

LogText::LogText(const QFont& font)
    : font_(font),
      rowHeight_(static_cast<int>(std::ceil(QFontMetricsF(font_).lineSpacing()))),
      widest_(widestOf(QFontMetricsF(font_))) {}

void LogText::setLog(const LogLines& log) {
    if (!log.continues(log_) || log.size() < ends_.size()) {
        ends_ = {};
    }
    log_ = log;
}

void LogText::setWidth(int width) {
    if (width == width_) {
        return;
    }
    width_ = width;
    const std::size_t count = ends_.size();
    ends_.clear();
    layOutMore(count);
}

void LogText::layOutMore(std::size_t lines) {
    const std::size_t end = std::min(log_.size(), ends_.size() + lines);
    while (ends_.size() != end) {
        const QString text = line(ends_.size());
        const End before = ends_.empty() ? End{0, 0} : ends_.back();
        ends_.push_back({before.row + rowsOf(text),
                         before.offset + static_cast<std::uint32_t>(text.size()) + 1});
    }
}

QString LogText::line(std::size_t line) const {
    const std::string_view text = log_[line];
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::unique_ptr<QTextLayout> LogText::layout(std::size_t line) const {
    auto layout = std::make_unique<QTextLayout>(this->line(line), font_);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(Qt::LeftToRight);
    layout->setTextOption(option);
    layout->beginLayout();
    int row = 0;
    for (QTextLine each = layout->createLine(); each.isValid(); each = layout->createLine()) {
        each.setLineWidth(width_);
        each.setPosition(QPointF(0, row++ * rowHeight_));
    }
    layout->endLayout();
    return layout;
}

std::uint32_t LogText::rowsOf(const QString& line) const {
    // Most lines fit into one row: laying out each would take most of the time.
    if (static_cast<double>(line.size()) * widest_ <= width_ && isAscii(line)) {
        return 1;
    }
    return static_cast<std::uint32_t>(std::max(1, layout(ends_.size())->lineCount()));
}

std::uint32_t LogText::firstRow(std::size_t line) const {
    return line == 0 ? 0 : ends_[line - 1].row;
}

std::uint32_t LogText::firstOffset(std::size_t line) const {
    return line == 0 ? 0 : ends_[line - 1].offset;
}

std::size_t LogText::lineOfRow(int row) const {
    const auto found =
        std::upper_bound(ends_.begin(), ends_.end(), static_cast<std::uint32_t>(std::max(row, 0)),
                         [](std::uint32_t wanted, const End& each) { return wanted < each.row; });
    return std::min(static_cast<std::size_t>(found - ends_.begin()), ends_.size() - 1);
}

int LogText::rowOf(Place place) const {
    const auto first = static_cast<int>(firstRow(place.line));
    return first + layout(place.line)->lineForTextPosition(place.column).lineNumber();
}

LogText::Place LogText::placeAt(int row, double x) const {
    if (ends_.empty() || row < 0) {
        return {};
    }
    if (row >= rowCount()) {
        return end();
    }
    const std::size_t line = lineOfRow(row);
    const auto laidOut = layout(line);
    const QTextLine drawn = laidOut->lineAt(row - static_cast<int>(firstRow(line)));
    return {line, drawn.isValid() ? drawn.xToCursor(x) : 0};
}

LogText::Place LogText::end() const {
    if (ends_.empty()) {
        return {};
    }
    const std::size_t last = ends_.size() - 1;
    return {last, static_cast<int>(line(last).size())};
}

QString LogText::text(Place from, Place to) const {
    if (ends_.empty()) {
        return {};
    }
    if (from.line == to.line) {
        return line(from.line).mid(from.column, to.column - from.column);
    }
    QString text = line(from.line).mid(from.column);
    for (std::size_t between = from.line + 1; between != to.line; ++between) {
        text += '\n' + line(between);
    }
    return text + '\n' + line(to.line).left(to.column);
}

int LogText::offsetOf(Place place) const {
    return static_cast<int>(firstOffset(place.line)) + place.column;
}

LogText::Place LogText::placeOf(int offset) const {
    const auto wanted = static_cast<std::uint32_t>(std::max(offset, 0));
    const auto found = std::upper_bound(
        ends_.begin(), ends_.end(), wanted,
        [](std::uint32_t sought, const End& each) { return sought < each.offset; });
    if (found == ends_.end()) {
        return end();
    }
    const auto line = static_cast<std::size_t>(found - ends_.begin());
    return {line, static_cast<int>(wanted - firstOffset(line))};
}

} // namespace kelmar
