#include "ui/qt/log_view.hpp"

#include "ui/look.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/slim_scroll_bar.hpp"

#include <QGuiApplication>
#include <QScrollBar>
#include <QTimerEvent>
#include <algorithm>

namespace kelmar {

namespace {

/// Lines that are laid out well within the 16 milliseconds of one picture.
constexpr std::size_t portion = 400;

/// The part of the text's padding that scrolls with the text.
constexpr int documentMargin = 6;
constexpr int viewportMargin = Look::logPadding - documentMargin;

} // namespace

LogView::LogView(QWidget* parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setUndoRedoEnabled(false); // what can be undone is kept a second time
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFont(fontOf(TextStyle::log));
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new SlimScrollBar);
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    setViewportMargins(viewportMargin, viewportMargin, 0, viewportMargin);
    document()->setDocumentMargin(documentMargin);
    applyColours();
    const QScrollBar* const bar = verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this,
            [this, bar](int value) { following_ = value == bar->maximum(); });
    // The range changes with what is added, and with the height.
    connect(bar, &QScrollBar::rangeChanged, this, [this](int /*minimum*/, int maximum) {
        if (following_) {
            verticalScrollBar()->setValue(maximum);
        }
    });
}

void LogView::applyColours() {
    QPalette colours = palette();
    const QColor card =
        Colours(parentWidget() != nullptr ? parentWidget()->palette() : QGuiApplication::palette())
            .card;
    if (colours.color(QPalette::Base) != card) {
        colours.setColor(QPalette::Base, card);
        setPalette(colours);
    }
}

void LogView::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        applyColours();
    }
}

void LogView::render(const LogLines& log) {
    if (!log.continues(log_) || log.size() < shown_) {
        clear();
        shown_ = 0;
    }
    log_ = log;
    if (!isComplete() && !more_.isActive()) {
        addPortion();
    }
}

void LogView::addPortion() {
    const std::size_t end = std::min(log_.size(), shown_ + portion);
    QString text;
    for (; shown_ != end; ++shown_) {
        if (shown_ != 0) {
            text += '\n';
        }
        const std::string_view line = log_[shown_];
        text += QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()));
    }
    QScrollBar& bar = *verticalScrollBar();
    const int place = bar.value();
    const bool following = following_;
    const QTextCursor selection = textCursor();
    const int anchor = selection.anchor();
    const int position = selection.position();
    QTextCursor last(document());
    last.movePosition(QTextCursor::End);
    last.insertText(text);
    if (QTextCursor moved = textCursor();
        moved.anchor() != anchor || moved.position() != position) {
        // A cursor at the very end goes along with what is added there.
        moved.setPosition(anchor);
        moved.setPosition(position, QTextCursor::KeepAnchor);
        setTextCursor(moved);
    }
    bar.setValue(following ? bar.maximum() : place);
    following_ = following;
    if (isComplete()) {
        more_.stop();
    } else if (!more_.isActive()) {
        more_.start(0, this);
    }
}

void LogView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == more_.timerId()) {
        addPortion();
    } else {
        QPlainTextEdit::timerEvent(event);
    }
}

} // namespace kelmar
