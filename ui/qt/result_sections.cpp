#include "ui/qt/result_sections.hpp"

#include "ui/look.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/selectable_text.hpp"
#include "ui/qt/text_label.hpp"

namespace kelmar {

SummarySectionWidget::SummarySectionWidget(QWidget* parent)
    : Section(parent),
      inside_(new QVBoxLayout),
      rows_(*inside_) {
    inside_->setContentsMargins(margins(Look::cardPadding));
    inside_->setSpacing(Look::cardPadding);
    card().rows().addLayout(inside_);
}

void SummarySectionWidget::render(const std::vector<SummaryRow>& rows) {
    rows_.render(rows, [](std::size_t) {
        return new NoteRow(Look::rowIcons, TextStyle::body, TextTone::primary);
    });
}

ProblemRowWidget::ProblemRowWidget(bool first, QWidget* parent)
    : QWidget(parent),
      path_(new SelectableText(TextStyle::body, TextTone::primary)),
      reason_(new SelectableText(TextStyle::callout, TextTone::secondary)) {
    QVBoxLayout& column = layOutRow(*this, first, rowTextIndent());
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(margins(Look::cardPadding, Look::partGap));
    row->setSpacing(Look::rowIcons.gap);
    // The symbol before every item separates the paths visually.
    auto* const sign = new IconLabel(grown(Look::rowIcons.width), lineHeight(TextStyle::body));
    sign->showSymbol(ProblemRow::symbol, ProblemRow::tint, grown(Look::noteSymbol));
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(Look::textGap);
    texts->addWidget(path_);
    texts->addWidget(reason_);
    row->addWidget(sign, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    column.addLayout(row);
}

void ProblemRowWidget::render(const ProblemRow& row) {
    path_->showText(row.path);
    reason_->showText(row.reason);
}

ProblemsSectionWidget::ProblemsSectionWidget(QWidget* parent)
    : Section(parent),
      rows_(card().rows()) {}

void ProblemsSectionWidget::render(const ProblemsSection& section) {
    renderTitle(section.title);
    rows_.render(section.rows, [](std::size_t index) { return new ProblemRowWidget(index == 0); });
}

} // namespace kelmar
