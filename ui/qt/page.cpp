#include "ui/qt/page.hpp"

#include "ui/qt/button_row.hpp"
#include "ui/qt/card.hpp"
#include "ui/qt/confirmation.hpp"
#include "ui/qt/content.hpp"
#include "ui/qt/footer.hpp"
#include "ui/qt/header.hpp"

#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

namespace kelmar {

namespace {

/// The controls below `item` that take the focus, from top to bottom as they are laid out.
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
        made->setAutoRepeat(false); // a key that is held down answers one question
        connect(made, &QShortcut::activated, this, [this, meaning] { press(meaning); });
    };
    shortcut(Qt::Key_Return, ButtonKey::defaultAction);
    shortcut(Qt::Key_Enter, ButtonKey::defaultAction);
    shortcut(Qt::Key_Escape, ButtonKey::cancelAction);
}

void PageWidget::press(ButtonKey key) {
    const bool asking = alert_ != nullptr && alert_->isVisible();
    (asking ? alert_->buttons() : footer_->buttons()).press(key);
}

void PageWidget::render(const Page& page) {
    if (shown_ == page) {
        return;
    }
    ++changes_;
    const bool newPhase = !shown_ || shown_->content.index() != page.content.index();
    if (!shown_ || newPhase || shown_->header != page.header) {
        header_->render(page.header, newPhase);
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
