#include "ui/qt/confirmation.hpp"

#include "ui/look.hpp"
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

constexpr int contentWidth = Look::alertWidth - 2 * Look::alertPadding;

/// A card attached to the top of the page.
class Sheet : public Card {
protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Colours colours(palette());
        paintCard(*this, QRectF(rect()).adjusted(0, -Look::cardRadius - Look::hairline, 0, 0),
                  colours.card, colours.hairline);
    }
};

} // namespace

ConfirmationOverlay::ConfirmationOverlay(QWidget& page, std::function<void(Action)> perform,
                                         QWidget* parent)
    : QWidget(parent),
      page_(page),
      title_(new TextLabel(TextStyle::sectionTitle, TextTone::primary)),
      message_(new TextLabel(TextStyle::body, TextTone::secondary)),
      buttons_(new ButtonRow(std::move(perform), contentWidth + Look::focusRoom)) {
    auto* const box = new Sheet;
    box->setFixedWidth(Look::alertWidth);
    box->rows().setContentsMargins(Look::alertPadding, Look::alertPadding,
                                   Look::alertPadding - Look::focusRoom, Look::sectionGap);
    box->rows().setSpacing(Look::sectionGap);
    auto* const top = new QHBoxLayout;
    top->setSpacing(Look::sectionGap);
    auto* const icon = new IconLabel(Look::alertIcon);
    icon->showPicture("kelmar-uninstaller");
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(Look::alertTextGap);
    texts->addWidget(title_);
    texts->addWidget(message_);
    texts->addStretch();
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(texts, 1);
    box->rows().addLayout(top);
    box->rows().addWidget(buttons_, 0, Qt::AlignRight);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    auto* const middle = new QHBoxLayout;
    middle->addStretch();
    middle->addWidget(box);
    middle->addStretch();
    column->addLayout(middle);
    column->addStretch(1);
    setAccessibleRole(*this, QAccessible::AlertMessage);
    setAccessiblyModal(*this);
    hide();
}

void ConfirmationOverlay::render(const Confirmation& confirmation) {
    title_->showText(confirmation.title);
    message_->showText(confirmation.message);
    setAccessibleName(QString::fromStdString(confirmation.title));
    setAccessibleDescription(QString::fromStdString(confirmation.message));
    // The page lists the button that continues first, but it is drawn last, at the trailing edge,
    // as in the footer.
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
    QWidget* const before = focus_.data();
    const bool isThere = before != nullptr && before->isVisible() && before->isEnabled();
    (isThere ? before : parentWidget())->setFocus();
}

void ConfirmationOverlay::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Colours(palette()).scrim);
}

} // namespace kelmar
