#include "ui/qt/page.hpp"

#include "ui/qt/button_row.hpp"
#include "ui/qt/card.hpp"
#include "ui/qt/confirmation.hpp"
#include "ui/qt/content.hpp"
#include "ui/qt/footer.hpp"
#include "ui/qt/header.hpp"

#include <QApplication>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace kelmar {

namespace {

/// Collects the focusable controls below `item`, in the order of the layout.
void collect(QLayoutItem* item, QList<QWidget*>& controls) {
    if (QWidget* const widget = item->widget()) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
            controls.append(widget);
        } else if (widget->layout() != nullptr) {
            collect(widget->layout(), controls);
        }
    } else if (QLayout* const layout = item->layout()) {
        for (int index = 0; index < layout->count(); ++index) {
            collect(layout->itemAt(index), controls);
        }
    }
}

} // namespace

PageWidget::PageWidget(WindowActions actions, QWidget* parent)
    : QWidget(parent),
      actions_(std::move(actions)),
      below_(new QWidget(this)),
      header_(new HeaderWidget),
      content_(new ContentWidget(actions_)),
      footer_(new FooterWidget(actions_.perform)) {
    auto* const column = new QVBoxLayout(below_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header_);
    column->addWidget(new Hairline);
    column->addWidget(content_, 1);
    column->addWidget(new Hairline);
    column->addWidget(footer_);
    setFocusPolicy(Qt::ClickFocus);
    const auto shortcut = [this](Qt::Key key, ButtonKey meaning) {
        auto* const made = new QShortcut(key, this);
        made->setAutoRepeat(false); // a key that is held down must not answer two questions
        connect(made, &QShortcut::activated, this, [this, meaning] { press(meaning); });
    };
    connect(qApp, &QApplication::focusChanged, this, [this] { highlight(); });
    shortcut(Qt::Key_Return, ButtonKey::defaultAction);
    shortcut(Qt::Key_Enter, ButtonKey::defaultAction);
    shortcut(Qt::Key_Escape, ButtonKey::cancelAction);
}

PageWidget::~PageWidget() {
    // Destroying the page's parts moves the focus.
    disconnect(qApp, nullptr, this, nullptr);
}

bool PageWidget::isAsking() const {
    return alert_ != nullptr && !alert_->isHidden();
}

PushButton* PageWidget::pressedBy(ButtonKey key) const {
    // Both keys end a question, whatever has the focus.
    if (isAsking()) {
        return alert_->buttons().pressedBy(key);
    }
    // Otherwise Return presses the focused push button, as on all desktops of this platform.
    auto* const focused = dynamic_cast<PushButton*>(window()->focusWidget());
    if (key == ButtonKey::defaultAction && focused != nullptr && isAncestorOf(focused) &&
        focused->isEnabled()) {
        return focused;
    }
    return footer_->buttons().pressedBy(key);
}

PageWidget::Focus PageWidget::focused() const {
    QWidget* const widget = window()->focusWidget();
    const auto* const button = dynamic_cast<const PushButton*>(widget);
    return {widget, button == nullptr ? std::nullopt : std::optional(button->shown().action)};
}

void PageWidget::press(ButtonKey key) {
    if (PushButton* const button = pressedBy(key)) {
        button->click();
    }
}

void PageWidget::highlight() {
    PushButton* const button = pressedBy(ButtonKey::defaultAction);
    if (button == highlighted_) {
        return;
    }
    if (highlighted_ != nullptr) {
        highlighted_->setHighlighted(false);
    }
    if (button != nullptr) {
        button->setHighlighted(true);
    }
    highlighted_ = button;
}

void PageWidget::render(const Page& page) {
    if (shown_ == page) {
        return;
    }
    ++changes_;
    const Focus focus = focused();
    const bool wasAsking = isAsking();
    if (!shown_ || shown_->header != page.header) {
        header_->render(page.header);
    }
    if (!shown_ || shown_->content.index() != page.content.index() ||
        shown_->announcement() != page.announcement()) {
        header_->announce(page.announcement());
    }
    if (!shown_ || shown_->content != page.content) {
        content_->render(page.content);
    }
    if (!shown_ || shown_->footer != page.footer) {
        footer_->render(page.footer);
    }
    renderAlert(page.confirmation);
    shown_ = page;
    orderFocus();
    if (focus.widget != nullptr && !wasAsking && focused() != focus && !isAsking()) {
        // The toolkit moved the focus to the next control, which nobody chose.
        setFocus();
    }
    highlight();
}

void PageWidget::renderAlert(const std::optional<Confirmation>& confirmation) {
    if (confirmation) {
        if (alert_ == nullptr) {
            alert_ = new ConfirmationOverlay(*below_, actions_.perform, this);
            alert_->setGeometry(rect());
        }
        alert_->render(*confirmation);
    } else if (alert_ != nullptr) {
        alert_->dismiss();
    }
    asking_(confirmation.has_value());
}

void PageWidget::orderFocus() {
    QList<QWidget*> controls;
    collect(content_->widget()->layout(), controls);
    collect(footer_->layout(), controls);
    // Notes take the focus only for their help: put them after the buttons.
    std::stable_partition(controls.begin(), controls.end(), [](const QWidget* control) {
        return qobject_cast<const QLabel*>(control) == nullptr;
    });
    for (qsizetype index = 1; index < controls.size(); ++index) {
        if (controls[index - 1]->nextInFocusChain() != controls[index]) {
            setTabOrder(controls[index - 1], controls[index]);
        }
    }
}

void PageWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    below_->setGeometry(rect());
    if (alert_ != nullptr) {
        alert_->setGeometry(rect());
    }
}

} // namespace kelmar
