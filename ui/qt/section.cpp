#include "ui/qt/section.hpp"

#include "ui/look.hpp"
#include "ui/qt/accessibility.hpp"
#include "ui/qt/text_label.hpp"

namespace kelmar {

Section::Section(QWidget* parent)
    : QWidget(parent),
      column_(new QVBoxLayout(this)),
      title_(new TextLabel(TextStyle::sectionTitle, TextTone::primary)),
      card_(new Card) {
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(Look::partGap);
    column_->addWidget(title_);
    column_->addWidget(card_);
    title_->hide();
    setAccessibleRole(*title_, QAccessible::Heading);
}

void Section::renderTitle(const SectionTitle& title) {
    title_->showText(title.text);
    title_->show();
}

} // namespace kelmar
