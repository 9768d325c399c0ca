#include "ui/qt/footer.hpp"

#include "ui/look.hpp"
#include "ui/qt/busy_row.hpp"
#include "ui/qt/button_row.hpp"

#include <QVBoxLayout>
#include <algorithm>

namespace kelmar {

namespace {

constexpr int contentRoom = Look::windowWidth - 2 * Look::pageMargin + Look::focusRoom;

} // namespace

FooterWidget::FooterWidget(const std::function<void(Action)>& perform, QWidget* parent)
    : QWidget(parent),
      row_(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      noted_(new QVBoxLayout),
      notes_(*noted_),
      busy_(new BusyRow),
      buttons_(new ButtonRow(perform, contentRoom)) {
    row_->setContentsMargins(Look::pageMargin, Look::footerPadding,
                             Look::pageMargin - Look::focusRoom, Look::footerPadding);
    row_->setSpacing(Look::sectionGap);
    // Centred by stretches: an aligned item gets only the height of its one-line form.
    auto* const leading = new QVBoxLayout;
    leading->setSpacing(0);
    noted_->setSpacing(Look::lineGap);
    leading->addStretch();
    leading->addLayout(noted_);
    leading->addWidget(busy_);
    leading->addStretch();
    row_->addLayout(leading, 1);
    row_->addWidget(buttons_, 0, Qt::AlignRight | Qt::AlignVCenter);
    setMinimumHeight(Look::footerHeight);
}

void FooterWidget::render(const Footer& footer) {
    notes_.render(footer.notes, [](std::size_t) {
        return new NoteRow(Look::noteIcons, TextStyle::callout, TextTone::secondary);
    });
    buttons_->raise(); // last for screen readers as well, which follow the stacking order
    busy_->setVisible(footer.busy.has_value());
    busy_->render(footer.busy.value_or(Busy{}));
    buttons_->render(footer.buttons);
    const bool fits = neededWidth(footer) <= contentRoom;
    row_->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    row_->setSpacing(fits ? Look::sectionGap : Look::partGap);
}

int FooterWidget::neededWidth(const Footer& footer) const {
    int leading = footer.busy ? busy_->sizeHint().width() : 0;
    for (const NoteRow* const note : notes_.rows()) {
        leading = std::max(leading, note->sizeHint().width());
    }
    return leading + Look::sectionGap + buttons_->sizeHint().width();
}

} // namespace kelmar
