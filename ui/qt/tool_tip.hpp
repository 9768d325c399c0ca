#pragma once

#include <QWidget>

class QHelpEvent;

namespace kelmar {

/// Shows the tooltip of `widget` as the plain text that it is, in lines that wrap: the toolkit
/// wraps only markup, and takes a text for markup by its looks.
void showToolTip(QWidget& widget, const QHelpEvent& event);

/// The markup of a plain text, with places to break lines at.
QString toolTipMarkup(const QString& plain);

} // namespace kelmar
