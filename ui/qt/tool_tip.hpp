#pragma once

#include <QWidget>

class QHelpEvent;

namespace kelmar {

/// Shows the tooltip of `widget` as plain text in wrapped lines. The toolkit wraps only markup, and
/// guesses from a text whether it is markup.
void showToolTip(QWidget& widget, const QHelpEvent& event);

/// Converts plain text to markup, with possible line breaks.
QString toolTipMarkup(const QString& plain);

} // namespace kelmar
