#include "ui/qt/note_row.hpp"

#include "ui/look.hpp"
#include "ui/qt/icon.hpp"

#include <QHBoxLayout>

namespace kelmar {

NoteRow::NoteRow(int size, TextStyle style, TextTone tone, QWidget* parent)
    : QWidget(parent),
      size_(size),
      symbol_(new IconLabel(size)),
      text_(new TextLabel(style, tone)) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Look::partGap);
    row->addWidget(symbol_, 0, Qt::AlignTop);
    row->addWidget(text_, 1, Qt::AlignVCenter);
}

void NoteRow::showNote(const std::string& symbol, Tint tint, const std::string& text) {
    symbol_->showSymbol(symbol, tint, size_);
    text_->showText(text);
}

void NoteRow::render(const FooterNote& note) {
    showNote(note.symbol, Tint::secondary, note.text);
    // As text and not as markup; it wraps only as markup.
    const QString help = QString::fromStdString(note.help);
    setToolTip(help.toHtmlEscaped());
    text_->setAccessibleDescription(help);
}

void NoteRow::render(const SummaryRow& row) {
    showNote(row.symbol, row.tint, row.text);
}

void NoteRow::render(const Callout& callout) {
    showNote(callout.symbol, callout.tint, callout.text);
}

} // namespace kelmar
