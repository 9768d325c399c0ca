#include "ui/qt/accessibility.hpp"

#include "system/text/harmless_text.hpp"
#include "ui/look.hpp"
#include "ui/qt/log_accessibility.hpp"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QLabel>
#include <QTimer>
#include <QVariant>

namespace kelmar {

namespace {

constexpr const char* roleProperty = "kelmarAccessibleRole";
constexpr const char* modalProperty = "kelmarAccessiblyModal";
constexpr const char* hiddenProperty = "kelmarAccessiblyHidden";
constexpr const char* expandedProperty = "kelmarAccessiblyExpanded";

/// A widget with another role than that of its class.
class InRole : public QAccessibleWidget {
public:
    InRole(QWidget& widget, QAccessible::Role role) : QAccessibleWidget(&widget, role) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        const QString& text = kind == QAccessible::Name && own.isEmpty() ? shownText() : own;
        return QString::fromStdString(harmlessText(text.toStdString()));
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (widget()->property(modalProperty).isValid()) {
            state.modal = true;
        }
        if (widget()->property(hiddenProperty).isValid()) {
            state.invisible = true;
        }
        if (const QVariant expanded = widget()->property(expandedProperty); expanded.isValid()) {
            state.expandable = true;
            state.expanded = expanded.toBool();
            state.collapsed = !expanded.toBool();
        }
        return state;
    }

private:
    [[nodiscard]] virtual QString shownText() const {
        const auto* const label = qobject_cast<const QLabel*>(widget());
        return label == nullptr ? QString() : label->text();
    }
};

/// A button whose one action is a click. The toolkit's own interface would change a check box
/// itself, and press other buttons only after a delay, when they may have another meaning.
class ButtonInRole : public InRole {
public:
    using InRole::InRole;

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = InRole::state();
        state.checkable = button().isCheckable();
        state.checked = button().isChecked();
        state.pressed = button().isDown();
        return state;
    }

    [[nodiscard]] QRect rect() const override {
        constexpr int room = Look::focusRoom;
        const QRect whole = InRole::rect();
        return whole.isNull() ? whole : whole.adjusted(room, room, -room, -room);
    }

    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = InRole::actionNames();
        if (button().isEnabled()) {
            names.prepend(click());
        }
        return names;
    }

    void doAction(const QString& name) override {
        if (name != click()) {
            InRole::doAction(name);
            return;
        }
        // Queued, so that the screen reader gets its answer first: a click on Quit would keep it
        // from it. Skipped if the button's meaning has changed meanwhile.
        auto* const timer = new QTimer(&button());
        timer->setSingleShot(true);
        QObject::connect(
            timer, &QTimer::timeout, &button(),
            [timer, &button = button(), text = button().text(), on = button().isChecked()] {
                timer->deleteLater();
                if (button.text() == text && button.isChecked() == on) {
                    button.click();
                }
            });
        timer->start(0);
    }

private:
    [[nodiscard]] QAbstractButton& button() const {
        return static_cast<QAbstractButton&>(*widget());
    }

    [[nodiscard]] QString click() const {
        return button().isCheckable() ? toggleAction() : pressAction();
    }

    [[nodiscard]] QString shownText() const override { return button().text(); }
};

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->property(roleProperty).isValid()) {
        return nullptr;
    }
    const auto role = static_cast<QAccessible::Role>(widget->property(roleProperty).toInt());
    if (qobject_cast<QAbstractButton*>(object) != nullptr) {
        return new ButtonInRole(*widget, role);
    }
    return new InRole(*widget, role);
}

} // namespace

void installAccessibleRoles() {
    QAccessible::installFactory(interfaceFor);
    installAccessibleLog();
}

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(roleProperty, static_cast<int>(role));
}

void setAccessiblyModal(QWidget& widget) {
    widget.setProperty(modalProperty, true);
}

void hideFromScreenReaders(QWidget& widget) {
    widget.setProperty(hiddenProperty, true);
}

void setAccessiblyExpanded(QWidget& widget, bool expanded) {
    if (widget.property(expandedProperty) == expanded) {
        return;
    }
    widget.setProperty(expandedProperty, expanded);
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(&widget, changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace kelmar
