#include "ui/qt/found_section.hpp"

#include "ui/qt/icon.hpp"
#include "ui/qt/text_label.hpp"

#include <variant>

namespace kelmar {

namespace {

constexpr int iconColumn = 28;
constexpr int symbolSize = 20;
constexpr int dividerIndent = 52;

} // namespace

FoundRowWidget::FoundRowWidget(bool first, QWidget* parent)
    : QWidget(parent),
      icon_(new IconLabel(iconColumn)),
      title_(new TextLabel(TextStyle::body, TextLabel::Tone::primary)),
      detail_(new TextLabel(TextStyle::callout, TextLabel::Tone::secondary)) {
    QVBoxLayout& column = layOutRow(*this, first, dividerIndent);
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(12, 8, 12, 8);
    row->setSpacing(12);
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(title_);
    texts->addWidget(detail_);
    row->addWidget(icon_, 0, Qt::AlignVCenter);
    row->addLayout(texts, 1);
    column.addLayout(row);
}

void FoundRowWidget::render(const FoundRow& row) {
    if (const auto* const symbol = std::get_if<FoundRow::Symbol>(&row.icon)) {
        icon_->showSymbol(symbol->name, Tint::secondary, symbolSize);
    } else {
        // No desktop here knows the bundle's own icon; this is the product's.
        icon_->showPicture("kelmar-app");
    }
    title_->showText(row.title);
    detail_->showText(row.detail);
}

FoundSectionWidget::FoundSectionWidget(QWidget* parent) : Section(parent), rows_(card().rows()) {}

void FoundSectionWidget::render(const FoundSection& section) {
    renderTitle(section.title);
    card().setVisible(!section.rows.empty());
    rows_.render(section.rows, [](std::size_t index) { return new FoundRowWidget(index == 0); });
}

} // namespace kelmar
