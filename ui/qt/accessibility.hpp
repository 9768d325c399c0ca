#pragma once

#include <QAccessible>
#include <QWidget>

namespace kelmar {

/// Installs what the functions below need to reach screen readers. Call it once, before the first
/// window.
void installAccessibleRoles();

/// Gives `widget` a role. A label keeps its text as its name. A button can be pressed (a checkable
/// one: toggled), with the same effect as a click; its bounds exclude the room for its focus ring.
/// Names and descriptions are made harmless like drawn text.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// These take a `widget` that has a role. Marks it as modal.
void setAccessiblyModal(QWidget& widget);
/// Hides it; its content is announced elsewhere.
void hideFromScreenReaders(QWidget& widget);
/// Marks it as expandable, with its state; notifies screen readers of a change.
void setAccessiblyExpanded(QWidget& widget, bool expanded);

} // namespace kelmar
