#include "ui/qt/details.hpp"

#include "ui/look.hpp"
#include "ui/qt/card.hpp"
#include "ui/qt/disclosure.hpp"
#include "ui/qt/log_view.hpp"
#include "ui/qt/margins.hpp"

namespace kelmar {

DetailsWidget::DetailsWidget(const std::function<void(Action)>& perform, QWidget* parent)
    : QWidget(parent),
      toggle_(new Disclosure),
      frame_(new Card),
      log_(new LogView) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Look::partGap);
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(toggle_);
    row->addStretch();
    column->addLayout(row);
    auto* const card = static_cast<Card*>(frame_);
    card->rows().setContentsMargins(margins(Look::logSideMargin, Look::logVerticalMargin));
    card->rows().addWidget(log_);
    auto* const framed = new QHBoxLayout;
    framed->setContentsMargins(Look::focusRoom, 0, 0, 0);
    framed->addWidget(frame_);
    column->addLayout(framed, 1);
    frame_->hide();
    connect(toggle_, &QAbstractButton::clicked, this,
            [perform] { perform(Action::toggleDetails); });
}

void DetailsWidget::render(const Details& details) {
    toggle_->render(details.toggle, details.shown);
    log_->setAccessibleName(QString::fromStdString(details.toggle.text));
    if (details.shown) {
        log_->render(details.log); // while folded, it keeps position and selection
    }
    frame_->setVisible(details.shown);
}

} // namespace kelmar
