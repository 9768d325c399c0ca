#include "ui/qt/accessibility.hpp"

#include <QAccessibleWidget>
#include <QVariant>

namespace kelmar {

namespace {

constexpr const char* property = "kelmarAccessibleRole";

QAccessibleInterface* interfaceFor(const QString& /*className*/, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->property(property).isValid()) {
        return nullptr;
    }
    const auto role = static_cast<QAccessible::Role>(widget->property(property).toInt());
    return new QAccessibleWidget(widget, role);
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
