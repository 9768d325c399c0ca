#pragma once

#include <QAccessible>
#include <QWidget>

namespace kelmar {

/// Lets screen readers see widgets as the functions below say. Called once, before the first
/// window.
void installAccessibleRoles();

/// A label in a role is still named by its text. A button in a role can be pressed (a checkable
/// one: toggled), which is a click like any other and asks for what a click asks for.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Lets a screen reader say `text` now, whatever has the focus: `widget`, which shows nothing and
/// has the role of a notification, appears to it with that name.
void announce(QWidget& widget, const QString& text);

} // namespace kelmar
