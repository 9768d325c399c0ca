#include "ui/qt/footer.hpp"

#include "ui/look.hpp"
#include "ui/qt/busy_row.hpp"
#include "ui/qt/button_row.hpp"

#include <QVBoxLayout>

namespace kelmar {

FooterWidget::FooterWidget(const std::function<void(Action)>& perform, QWidget* parent)
    : QWidget(parent),
      leading_(new QVBoxLayout),
      notes_(*leading_),
      busy_(new BusyRow),
      buttons_(new ButtonRow(perform)) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(Look::pageMargin, Look::footerPadding,
                            Look::pageMargin - Look::focusRoom, Look::footerPadding);
    row->setSpacing(Look::sectionGap);
    leading_->setSpacing(Look::lineGap);
    leading_->addWidget(busy_);
    row->addLayout(leading_, 1);
    row->addWidget(buttons_, 0, Qt::AlignVCenter);
    row->setAlignment(leading_, Qt::AlignVCenter);
    setMinimumHeight(Look::footerHeight);
}

void FooterWidget::render(const Footer& footer) {
    notes_.render(footer.notes, [](std::size_t) {
        return new NoteRow(Look::noteSymbol, TextStyle::callout, TextTone::secondary);
    });
    buttons_->raise(); // last for screen readers too, which go by the stacking order
    busy_->setVisible(footer.busy.has_value());
    busy_->render(footer.busy.value_or(Busy{}));
    buttons_->render(footer.buttons);
}

} // namespace kelmar
