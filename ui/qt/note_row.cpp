#include "ui/qt/note_row.hpp"

#include "system/text/harmless_text.hpp"
#include "ui/look.hpp"
#include "ui/qt/focus_ring.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/tool_tip.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QToolTip>
#include <algorithm>

namespace kelmar {

NoteRow::NoteRow(const Look::IconColumn& icons, TextStyle style, TextTone tone, QWidget* parent)
    : QWidget(parent),
      size_(grown(icons.icon)),
      symbol_(new IconLabel(grown(icons.width), std::max(size_, lineHeight(style)))),
      text_(new TextLabel(style, tone)) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(icons.gap);
    row->addWidget(symbol_, 0, Qt::AlignTop);
    row->addWidget(text_, 1);
}

void NoteRow::showNote(const std::string& symbol, Tint tint, const std::string& text) {
    symbol_->showSymbol(symbol, tint, size_);
    text_->showText(text);
}

void NoteRow::render(const FooterNote& note) {
    showNote(note.symbol, Tint::secondary, note.text);
    const QString help = QString::fromStdString(harmlessText(note.help));
    setToolTip(help);
    text_->setAccessibleDescription(help);
    // A mouse user hovers over a note to read its help; a keyboard user focuses it.
    text_->setFocusPolicy(help.isEmpty() ? Qt::NoFocus : Qt::TabFocus);
    text_->installEventFilter(this);
}

bool NoteRow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn) {
        // Later: the toolkit closes tooltips while it moves the focus.
        help_.start(0, this);
        update();
    } else if (event->type() == QEvent::FocusOut) {
        QToolTip::hideText();
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void NoteRow::timerEvent(QTimerEvent* event) {
    if (event->timerId() != help_.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    help_.stop();
    if (text_->hasFocus()) {
        QToolTip::showText(mapToGlobal(QPoint()), toolTipMarkup(toolTip()), this);
    }
}

void NoteRow::paintEvent(QPaintEvent* /*event*/) {
    if (showsFocus(*text_)) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        constexpr int room = Look::focusRoom;
        paintFocusRing(painter, QRectF(rect()).adjusted(room, room, -room, -room),
                       Look::controlRadius, Colours(palette()));
    }
}

bool NoteRow::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        showToolTip(*this, static_cast<const QHelpEvent&>(*event));
        return true;
    }
    return QWidget::event(event);
}

void NoteRow::render(const SummaryRow& row) {
    showNote(row.symbol, row.tint, row.text);
}

void NoteRow::render(const Callout& callout) {
    showNote(callout.symbol, callout.tint, callout.text);
}

} // namespace kelmar
