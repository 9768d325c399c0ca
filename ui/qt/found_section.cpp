#include "ui/qt/found_section.hpp"

#include "ui/look.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/margins.hpp"
#include "ui/qt/text_label.hpp"

#include <variant>

namespace kelmar {

FoundRowWidget::FoundRowWidget(bool first, QWidget* parent)
    : QWidget(parent),
      icon_(new IconLabel(grown(Look::rowIcons.width))),
      title_(new TextLabel(TextStyle::body, TextTone::primary)),
      detail_(new TextLabel(TextStyle::callout, TextTone::secondary)) {
    QVBoxLayout& column = layOutRow(*this, first, rowTextIndent());
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(margins(Look::cardPadding, Look::rowPadding));
    row->setSpacing(Look::columnGap);
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(Look::textGap);
    texts->addWidget(title_);
    texts->addWidget(detail_);
    row->addWidget(icon_, 0, Qt::AlignVCenter);
    row->addLayout(texts, 1);
    column.addLayout(row);
}

void FoundRowWidget::render(const FoundRow& row) {
    if (const auto* const symbol = std::get_if<FoundRow::Symbol>(&row.icon)) {
        icon_->showSymbol(symbol->name, Tint::secondary, grown(Look::rowSymbol));
    } else {
        // Linux desktops don't know the bundle's own icon; this is the product's.
        icon_->showPicture("kelmar-app");
    }
    title_->showText(row.title);
    detail_->showText(row.detail);
}

FoundSectionWidget::FoundSectionWidget(QWidget* parent) : Section(parent), rows_(card().rows()) {}

void FoundSectionWidget::render(const FoundSection& section) {
    renderTitle(section.title);
    card().setVisible(!section.rows.empty());
    title().setTone(section.rows.empty() ? TextTone::secondary : TextTone::primary);
    rows_.render(section.rows, [](std::size_t index) { return new FoundRowWidget(index == 0); });
}

} // namespace kelmar
