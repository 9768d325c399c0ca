#include "ui/qt/busy_row.hpp"

#include "ui/qt/icon.hpp"
#include "ui/qt/text_label.hpp"

#include <QHBoxLayout>

namespace kelmar {

BusyRow::BusyRow(QWidget* parent)
    : QWidget(parent),
      text_(new TextLabel(TextStyle::body, TextLabel::Tone::secondary)) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    auto* const spinner = new IconLabel(20);
    spinner->showSpinner();
    row->addWidget(spinner, 0, Qt::AlignTop);
    row->addWidget(text_, 1);
}

void BusyRow::render(const Busy& busy) {
    text_->showText(busy.text);
}

} // namespace kelmar
