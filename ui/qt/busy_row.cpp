#include "ui/qt/busy_row.hpp"

#include "ui/look.hpp"
#include "ui/qt/fonts.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/text_label.hpp"

#include <QHBoxLayout>

namespace kelmar {

BusyRow::BusyRow(QWidget* parent)
    : QWidget(parent),
      text_(new TextLabel(TextStyle::body, TextTone::secondary)) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Look::noteIcons.gap);
    auto* const spinner = new IconLabel(grown(Look::noteIcons.width), lineHeight(TextStyle::body));
    spinner->showSpinner(grown(Look::spinner));
    row->addWidget(spinner, 0, Qt::AlignTop);
    row->addWidget(text_, 1);
}

void BusyRow::render(const Busy& busy) {
    text_->showText(busy.text);
}

} // namespace kelmar
