#include "ui/qt/log_view.hpp"

#include "ui/qt/colours.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/slim_scroll_bar.hpp"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <QTimerEvent>
#include <algorithm>
#include <utility>

namespace kelmar {

namespace {

/// Lines that can be laid out well within one frame of 16 milliseconds.
constexpr std::size_t portion = 400;

constexpr int dragInterval = 40; ///< milliseconds per row while a drag scrolls

QFont logFont() {
    return fontOf(TextStyle::log);
}

/// Tells screen readers about the text of new lines.
void tellInserted(LogView& view, LogText::Place from) {
    if (QAccessible::isActive()) {
        QAccessibleTextInsertEvent inserted(&view, view.text().offsetOf(from),
                                            view.text().text(from, view.text().end()));
        QAccessible::updateAccessibility(&inserted);
    }
}

} // namespace

LogView::LogView(QWidget* parent) : QAbstractScrollArea(parent), text_(logFont()) {
    setFont(logFont());
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new SlimScrollBar);
    setViewportMargins(Look::logPadding, Look::logPadding, 0, Look::logPadding);
    viewport()->setAutoFillBackground(false);
    viewport()->setCursor(Qt::IBeamCursor);
    QScrollBar* const bar = verticalScrollBar();
    bar->setSingleStep(1);
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) {
        following_ = value == bar->maximum();
        viewport()->update();
    });
    // The range changes with new lines and with the height.
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int /*minimum*/, int maximum) {
        if (following_) {
            bar->setValue(maximum);
        }
    });
}

void LogView::render(const LogLines& log) {
    text_.setLog(log);
    if (text_.lineCount() == 0) {
        select({}, {});
        following_ = true;
        updateRange();
    }
    if (!isComplete() && !more_.isActive()) {
        addPortion();
    }
}

void LogView::addPortion() {
    const bool first = text_.lineCount() == 0;
    const Place before = text_.end();
    text_.layOutMore(portion);
    updateRange();
    tellInserted(*this, first ? Place{} : before);
    viewport()->update();
    if (isComplete()) {
        more_.stop();
    } else if (!more_.isActive()) {
        more_.start(0, this);
    }
}

int LogView::rowsInSight() const {
    return std::max(1, viewport()->height() / text_.rowHeight());
}

void LogView::updateRange() {
    // Changing the range may lower the value: remember first whether the end is shown.
    const bool following = following_;
    QScrollBar& bar = *verticalScrollBar();
    bar.setPageStep(rowsInSight());
    bar.setRange(0, std::max(0, text_.rowCount() - rowsInSight()));
    if (following) {
        bar.setValue(bar.maximum());
    }
    following_ = following;
}

void LogView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    // Reserve the scroll bar's width even without it, so that rows don't change when it appears.
    text_.setWidth(std::max(1, width() - 2 * Look::logPadding - Look::scrollBar));
    updateRange();
}

void LogView::paintEvent(QPaintEvent* /*event*/) {
    if (text_.lineCount() == 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(Colours(palette()).text);
    const auto [from, to] = std::minmax(anchor_, cursor_);
    const int top = verticalScrollBar()->value();
    const int height = text_.rowHeight();
    for (std::size_t line = text_.lineOfRow(top); line != text_.lineCount(); ++line) {
        const int y = (static_cast<int>(text_.firstRow(line)) - top) * height;
        if (y >= viewport()->height()) {
            break;
        }
        const auto layout = text_.layout(line);
        QList<QTextLayout::FormatRange> formats;
        if (from < to && from.line <= line && line <= to.line) {
            QTextLayout::FormatRange selected;
            selected.start = from.line == line ? from.column : 0;
            const int end = to.line == line ? to.column : static_cast<int>(layout->text().size());
            selected.length = end - selected.start;
            selected.format.setBackground(palette().highlight());
            selected.format.setForeground(palette().highlightedText());
            formats.append(selected);
        }
        layout->draw(&painter, QPointF(0, y), formats);
        if (line == cursor_.line && showsFocus(*this)) {
            layout->drawCursor(&painter, QPointF(0, y), cursor_.column);
        }
    }
}

QString LogView::selectedText() const {
    const auto [from, to] = std::minmax(anchor_, cursor_);
    return text_.text(from, to);
}

void LogView::select(Place anchor, Place cursor) {
    if (anchor == anchor_ && cursor == cursor_) {
        return;
    }
    anchor_ = anchor;
    cursor_ = cursor;
    viewport()->update();
    QAccessibleTextSelectionEvent selected(this, text_.offsetOf(std::min(anchor, cursor)),
                                           text_.offsetOf(std::max(anchor, cursor)));
    selected.setCursorPosition(text_.offsetOf(cursor));
    QAccessible::updateAccessibility(&selected);
}

void LogView::selectAll() {
    select({}, text_.end());
}

void LogView::copy() const {
    if (hasSelection()) {
        QGuiApplication::clipboard()->setText(selectedText());
    }
}

void LogView::bringIntoSight(Place place) {
    QScrollBar& bar = *verticalScrollBar();
    const int row = text_.rowOf(place);
    bar.setValue(std::clamp(bar.value(), row - rowsInSight() + 1, row));
}

QRect LogView::placeInViewport(Place place) const {
    if (text_.lineCount() == 0) {
        return {};
    }
    const auto layout = text_.layout(place.line);
    const QTextLine line = layout->lineForTextPosition(place.column);
    if (!line.isValid()) {
        return {};
    }
    const auto left = static_cast<int>(line.cursorToX(place.column));
    const auto right = static_cast<int>(line.cursorToX(place.column + 1));
    const int row = static_cast<int>(text_.firstRow(place.line)) + line.lineNumber();
    return {left, (row - verticalScrollBar()->value()) * text_.rowHeight(),
            std::max(1, right - left), text_.rowHeight()};
}

LogView::Place LogView::placeAt(QPoint inViewport) const {
    const int row = verticalScrollBar()->value() +
                    (inViewport.y() < 0 ? -1 : inViewport.y() / text_.rowHeight());
    return text_.placeAt(row, inViewport.x());
}

void LogView::extendTo(Place place) {
    select(anchor_, place);
    bringIntoSight(place);
}

void LogView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && text_.lineCount() != 0) {
        const Place place = placeAt(event->pos());
        select((event->modifiers() & Qt::ShiftModifier) != 0 ? anchor_ : place, place);
    }
}

void LogView::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0 || text_.lineCount() == 0) {
        return;
    }
    select(anchor_, placeAt(event->pos()));
    if (viewport()->rect().contains(event->pos())) {
        dragging_.stop();
    } else if (!dragging_.isActive()) {
        dragging_.start(dragInterval, this);
    }
}

void LogView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    dragging_.stop();
    if (hasSelection() && QGuiApplication::clipboard()->supportsSelection()) {
        QGuiApplication::clipboard()->setText(selectedText(), QClipboard::Selection);
    }
}

void LogView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (text_.lineCount() == 0) {
        return;
    }
    const Place place = placeAt(event->pos());
    const QString line = text_.line(place.line);
    QTextBoundaryFinder words(QTextBoundaryFinder::Word, line);
    words.setPosition(std::min(place.column + 1, static_cast<int>(line.size())));
    const auto begin = static_cast<int>(std::max<qsizetype>(words.toPreviousBoundary(), 0));
    const auto end = static_cast<int>(words.toNextBoundary());
    select({place.line, begin}, {place.line, end < 0 ? begin : end});
}

std::optional<LogView::Place> LogView::movedBy(const QKeyEvent& event) const {
    const auto matches = [&event](QKeySequence::StandardKey key) { return event.matches(key); };
    const auto rows = [this](int by) {
        const QRect place = placeInViewport(cursor_);
        return text_.placeAt(text_.rowOf(cursor_) + by, place.x());
    };
    const int offset = text_.offsetOf(cursor_);
    if (matches(QKeySequence::SelectNextChar)) {
        return text_.placeOf(offset + 1);
    }
    if (matches(QKeySequence::SelectPreviousChar)) {
        return text_.placeOf(offset - 1);
    }
    if (matches(QKeySequence::SelectNextLine)) {
        return rows(1);
    }
    if (matches(QKeySequence::SelectPreviousLine)) {
        return rows(-1);
    }
    if (matches(QKeySequence::SelectNextPage)) {
        return rows(rowsInSight());
    }
    if (matches(QKeySequence::SelectPreviousPage)) {
        return rows(-rowsInSight());
    }
    if (matches(QKeySequence::SelectEndOfLine)) {
        return Place{cursor_.line, static_cast<int>(text_.line(cursor_.line).size())};
    }
    if (matches(QKeySequence::SelectStartOfLine)) {
        return Place{cursor_.line, 0};
    }
    if (matches(QKeySequence::SelectEndOfDocument)) {
        return text_.end();
    }
    if (matches(QKeySequence::SelectStartOfDocument)) {
        return Place{};
    }
    return std::nullopt;
}

void LogView::keyPressEvent(QKeyEvent* event) {
    QScrollBar& bar = *verticalScrollBar();
    if (event->matches(QKeySequence::SelectAll)) {
        selectAll();
    } else if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (text_.lineCount() != 0 && movedBy(*event)) {
        if (!hasSelection() && !viewport()->rect().intersects(placeInViewport(cursor_))) {
            // A new selection starts at the top of the visible text.
            const Place top = text_.placeAt(bar.value(), 0);
            select(top, top);
        }
        extendTo(*movedBy(*event));
    } else if (event->key() == Qt::Key_Home) {
        bar.setValue(bar.minimum());
    } else if (event->key() == Qt::Key_End) {
        bar.setValue(bar.maximum());
    } else {
        QAbstractScrollArea::keyPressEvent(event); // scrolls, or passes the key to the page
    }
}

void LogView::focusInEvent(QFocusEvent* /*event*/) {
    viewport()->update();
}

void LogView::focusOutEvent(QFocusEvent* /*event*/) {
    viewport()->update();
}

void LogView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == more_.timerId()) {
        addPortion();
    } else if (event->timerId() == dragging_.timerId()) {
        extendTo(placeAt(viewport()->mapFromGlobal(QCursor::pos())));
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

} // namespace kelmar
