#pragma once

#include <QAccessible>
#include <QWidget>

namespace kelmar {

/// Lets screen readers see widgets in the roles that `setAccessibleRole` gives them. Called once,
/// before the first window.
void installAccessibleRoles();

void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Lets a screen reader say `text` now, whatever has the focus: `widget`, which shows nothing and
/// has the role of a notification, appears to it with that name.
void announce(QWidget& widget, const QString& text);

} // namespace kelmar
