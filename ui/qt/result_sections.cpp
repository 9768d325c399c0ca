#include "ui/qt/result_sections.hpp"

#include "ui/qt/text_label.hpp"

namespace kelmar {

SummarySectionWidget::SummarySectionWidget(QWidget* parent)
    : Section(parent),
      inside_(new QVBoxLayout),
      rows_(*inside_) {
    inside_->setContentsMargins(12, 12, 12, 12);
    inside_->setSpacing(12);
    card().rows().addLayout(inside_);
}

void SummarySectionWidget::render(const std::vector<SummaryRow>& rows) {
    rows_.render(rows, [](std::size_t) {
        return new NoteRow(20, TextStyle::body, TextLabel::Tone::primary);
    });
}

ProblemRowWidget::ProblemRowWidget(bool first, QWidget* parent)
    : QWidget(parent),
      path_(new TextLabel(TextStyle::body, TextLabel::Tone::primary)),
      reason_(new TextLabel(TextStyle::callout, TextLabel::Tone::secondary)) {
    QVBoxLayout& column = layOutRow(*this, first, 12);
    auto* const texts = new QVBoxLayout;
    texts->setContentsMargins(12, 8, 12, 8);
    texts->setSpacing(2);
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
