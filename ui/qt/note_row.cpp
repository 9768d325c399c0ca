#include "ui/qt/note_row.hpp"

#include "ui/look.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/tool_tip.hpp"

#include <QHBoxLayout>
#include <QHelpEvent>
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
    const QString help = QString::fromStdString(note.help);
    setToolTip(help);
    text_->setAccessibleDescription(help);
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
