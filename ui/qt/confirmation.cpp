#include "ui/qt/confirmation.hpp"

#include "ui/qt/accessibility.hpp"
#include "ui/qt/button_row.hpp"
#include "ui/qt/card.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/icon.hpp"
#include "ui/qt/text_label.hpp"

#include <QPainter>
#include <QVBoxLayout>
#include <utility>

namespace kelmar {

namespace {

constexpr int boxWidth = 440;

} // namespace

ConfirmationOverlay::ConfirmationOverlay(QWidget& page, std::function<void(Action)> perform,
                                         QWidget* parent)
    : QWidget(parent),
      page_(page),
      title_(new TextLabel(TextStyle::heading, TextLabel::Tone::primary)),
      message_(new TextLabel(TextStyle::body, TextLabel::Tone::secondary)),
      buttons_(new ButtonRow(std::move(perform))) {
    auto* const box = new Card;
    box->setFixedWidth(boxWidth);
    box->rows().setContentsMargins(20, 20, 20, 16);
    box->rows().setSpacing(16);
    auto* const top = new QHBoxLayout;
    top->setSpacing(16);
    auto* const icon = new IconLabel(48);
    icon->showPicture("kelmar-uninstaller");
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(6);
    texts->addWidget(title_);
    texts->addWidget(message_);
    texts->addStretch();
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(texts, 1);
    box->rows().addLayout(top);
    box->rows().addWidget(buttons_, 0, Qt::AlignRight);
    auto* const column = new QVBoxLayout(this);
    column->addStretch(2);
    auto* const middle = new QHBoxLayout;
    middle->addStretch();
    middle->addWidget(box);
    middle->addStretch();
    column->addLayout(middle);
    column->addStretch(3);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    hide();
}

void ConfirmationOverlay::render(const Confirmation& confirmation) {
    title_->showText(confirmation.title);
    message_->showText(confirmation.message);
    setAccessibleName(QString::fromStdString(confirmation.title));
    setAccessibleDescription(QString::fromStdString(confirmation.message));
    // The page names the button that goes on first; its place is the trailing one, as in the
    // footer.
    buttons_->render({confirmation.buttons.rbegin(), confirmation.buttons.rend()});
    if (isHidden()) {
        focus_ = window()->focusWidget();
        page_.setEnabled(false);
        show();
        raise();
        if (PushButton* const button = buttons_->safest()) {
            button->setFocus();
        }
    }
}

void ConfirmationOverlay::dismiss() {
    if (isHidden()) {
        return;
    }
    hide();
    page_.setEnabled(true);
    if (QWidget* const before = focus_.data(); before != nullptr && before->isVisible()) {
        before->setFocus();
    }
}

void ConfirmationOverlay::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Colours(palette()).scrim);
}

} // namespace kelmar
