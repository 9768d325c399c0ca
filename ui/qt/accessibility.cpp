#include "ui/qt/accessibility.hpp"

#include <QAccessibleWidget>
#include <QLabel>
#include <QVariant>

namespace kelmar {

namespace {

constexpr const char* property = "kelmarAccessibleRole";

/// A widget in another role than its class has; a label is still named by its text.
class InRole : public QAccessibleWidget {
public:
    InRole(QWidget& widget, QAccessible::Role role) : QAccessibleWidget(&widget, role) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const auto* const label = qobject_cast<const QLabel*>(widget());
        const QString own = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && own.isEmpty() && label != nullptr ? label->text() : own;
    }
};

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->property(property).isValid()) {
        return nullptr;
    }
    const auto role = static_cast<QAccessible::Role>(widget->property(property).toInt());
    return new InRole(*widget, role);
}

} // namespace

void installAccessibleRoles() {
    QAccessible::installFactory(interfaceFor);
}

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(property, static_cast<int>(role));
}

void announce(QWidget& widget, const QString& text) {
    widget.setAccessibleName(text);
    QAccessibleEvent appeared(&widget, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appeared);
}

} // namespace kelmar
