#include "ui/qt/footer.hpp"

#include "ui/qt/busy_row.hpp"
#include "ui/qt/button_row.hpp"
#include "ui/qt/focus_ring.hpp"

#include <QVBoxLayout>

namespace kelmar {

FooterWidget::FooterWidget(const std::function<void(Action)>& perform, QWidget* parent)
    : QWidget(parent),
      leading_(new QVBoxLayout),
      notes_(*leading_),
      busy_(new BusyRow),
      buttons_(new ButtonRow(perform)) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(24, 12, 24 - focusRoom, 12);
    row->setSpacing(16);
    leading_->setSpacing(4);
    leading_->addWidget(busy_);
    row->addLayout(leading_, 1);
    row->addWidget(buttons_, 0, Qt::AlignVCenter);
    row->setAlignment(leading_, Qt::AlignVCenter);
    setMinimumHeight(64);
}

void FooterWidget::render(const Footer& footer) {
    notes_.render(footer.notes, [](std::size_t) {
        return new NoteRow(16, TextStyle::callout, TextLabel::Tone::secondary);
    });
    buttons_->raise(); // last for screen readers too, which go by the stacking order
    busy_->setVisible(footer.busy.has_value());
    busy_->render(footer.busy.value_or(Busy{}));
    buttons_->render(footer.buttons);
}

} // namespace kelmar
