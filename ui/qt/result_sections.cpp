#include "ui/qt/result_sections.hpp"

#include "ui/look.hpp"
#include "ui/qt/margins.hpp"
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
        return new NoteRow(Look::rowSymbol, TextStyle::body, TextTone::primary);
    });
}

ProblemRowWidget::ProblemRowWidget(bool first, QWidget* parent)
    : QWidget(parent),
      path_(new TextLabel(TextStyle::body, TextTone::primary)),
      reason_(new TextLabel(TextStyle::callout, TextTone::secondary)) {
    QVBoxLayout& column = layOutRow(*this, first, Look::cardPadding);
    auto* const texts = new QVBoxLayout;
    texts->setContentsMargins(margins(Look::cardPadding, Look::rowPadding));
    texts->setSpacing(Look::textGap);
    texts->addWidget(path_);
    texts->addWidget(reason_);
    column.addLayout(texts);
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
