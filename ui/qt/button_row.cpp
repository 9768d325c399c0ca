#include "ui/qt/button_row.hpp"

#include "ui/look.hpp"

#include <utility>

namespace kelmar {

namespace {

QHBoxLayout* rowOf(QWidget& widget) {
    auto* const row = new QHBoxLayout(&widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Look::buttonGap - 2 * Look::focusRoom);
    return row;
}

bool belongs(ButtonKey key, const Button& button) {
    return button.key == key || button.key == ButtonKey::both;
}

} // namespace

ButtonRow::ButtonRow(std::function<void(Action)> perform, int room, QWidget* parent)
    : QWidget(parent),
      perform_(std::move(perform)),
      room_(room),
      buttons_(*rowOf(*this)) {}

void ButtonRow::render(const std::vector<Button>& buttons) {
    buttons_.render(buttons, [this](std::size_t) {
        auto* const button = new PushButton(PushButton::Size::large);
        connect(button, &QAbstractButton::clicked, this,
                [this, button] { perform_(button->shown().action); });
        button->setMaximumWidth(room_);
        return button;
    });
    auto& row = static_cast<QBoxLayout&>(*layout());
    row.setDirection(QBoxLayout::LeftToRight);
    if (sizeHint().width() > room_) {
        row.setDirection(QBoxLayout::TopToBottom);
    }
}

PushButton* ButtonRow::pressedBy(ButtonKey key) const {
    for (PushButton* const button : buttons_.rows()) {
        if (button->isEnabled() && belongs(key, button->shown())) {
            return button;
        }
    }
    return nullptr;
}

PushButton* ButtonRow::safest() const {
    for (PushButton* const button : buttons_.rows()) {
        if (belongs(ButtonKey::cancelAction, button->shown())) {
            return button;
        }
    }
    return buttons_.rows().empty() ? nullptr : buttons_.rows().back();
}

} // namespace kelmar
