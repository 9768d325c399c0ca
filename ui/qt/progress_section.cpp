#include "ui/qt/progress_section.hpp"

#include "ui/look.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/text_label.hpp"

namespace kelmar {

ProgressRowWidget::ProgressRowWidget(bool first, QWidget* parent)
    : QWidget(parent),
      icon_(new IconLabel(grown(Look::rowIcons.width))),
      title_(new TextLabel(TextStyle::body, TextTone::primary)) {
    QVBoxLayout& column = layOutRow(*this, first, rowTextIndent());
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(margins(Look::cardPadding, Look::rowPadding));
    row->setSpacing(Look::columnGap);
    row->addWidget(icon_, 0, Qt::AlignVCenter);
    row->addWidget(title_, 1);
    column.addLayout(row);
}

void ProgressRowWidget::render(const ProgressRow& row) {
    if (row.icon.symbol) {
        icon_->showSymbol(*row.icon.symbol, row.icon.tint, grown(Look::rowSymbol));
    } else {
        icon_->showSpinner(grown(Look::spinner));
    }
    icon_->setAccessibleName(QString::fromStdString(row.icon.label));
    title_->showText(row.title);
}

ProgressSectionWidget::ProgressSectionWidget(QWidget* parent)
    : Section(parent),
      rows_(card().rows()),
      detail_(new TextLabel(TextStyle::callout, TextTone::secondary,
                            TextLabel::Overflow::elideMiddle)) {
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(margins(Look::cardPadding, 0));
    line->addWidget(detail_);
    column().addLayout(line);
}

void ProgressSectionWidget::render(const WorkingContent& content) {
    rows_.render(content.stages,
                 [](std::size_t index) { return new ProgressRowWidget(index == 0); });
    detail_->showText(content.detail);
}

} // namespace kelmar
