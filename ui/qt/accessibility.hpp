#pragma once

#include <QAccessible>
#include <QWidget>

namespace kelmar {

/// Lets screen readers see widgets as the functions below say. Called once, before the first
/// window.
void installAccessibleRoles();

/// A label in a role is still named by its text. A button in a role can be pressed (a checkable
/// one: toggled), which is a click like any other and asks for what a click asks for; its place is
/// what it draws, without the room for its focus ring. Names and descriptions are made as harmless
/// as a text that is drawn.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

/// The rest of what `widget`, which has a role, is to a screen reader:
/// People have to answer before they can do anything else.
void setAccessiblyModal(QWidget& widget);
/// It is not there; what it says is said elsewhere.
void hideFromScreenReaders(QWidget& widget);
/// It unfolds something, and has done so or not; a change is told.
void setAccessiblyExpanded(QWidget& widget, bool expanded);

/// Lets a screen reader say `text` now, whatever has the focus: `widget`, which shows nothing and
/// has the role of a notification, appears to it with that name.
void announce(QWidget& widget, const QString& text);

} // namespace kelmar
