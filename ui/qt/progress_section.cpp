#include "ui/qt/progress_section.hpp"

#include "ui/qt/icon.hpp"
#include "ui/qt/text_label.hpp"

namespace kelmar {

namespace {

constexpr int iconSide = 20;
constexpr int dividerIndent = 44;

} // namespace

ProgressRowWidget::ProgressRowWidget(bool first, QWidget* parent)
    : QWidget(parent),
      icon_(new IconLabel(iconSide)),
      title_(new TextLabel(TextStyle::body, TextLabel::Tone::primary)) {
    QVBoxLayout& column = layOutRow(*this, first, dividerIndent);
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(12, 12, 12, 12);
    row->setSpacing(12);
    row->addWidget(icon_, 0, Qt::AlignTop);
    row->addWidget(title_, 1, Qt::AlignVCenter);
    column.addLayout(row);
}

void ProgressRowWidget::render(const ProgressRow& row) {
    if (row.icon.symbol) {
        icon_->showSymbol(*row.icon.symbol, row.icon.tint, iconSide);
    } else {
        icon_->showSpinner();
    }
    icon_->setAccessibleName(QString::fromStdString(row.icon.label));
    title_->showText(row.title);
}

ProgressSectionWidget::ProgressSectionWidget(QWidget* parent)
    : Section(parent),
      rows_(card().rows()),
      detail_(new TextLabel(TextStyle::callout, TextLabel::Tone::secondary,
                            TextLabel::Overflow::elideMiddle)) {
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(12, 0, 12, 0);
    line->addWidget(detail_);
    column().addLayout(line);
}

void ProgressSectionWidget::render(const WorkingContent& content) {
    rows_.render(content.stages,
                 [](std::size_t index) { return new ProgressRowWidget(index == 0); });
    detail_->showText(content.detail);
}

} // namespace kelmar
