#pragma once

#include <QRectF>
#include <QString>
#include <vector>

class QWidget;

namespace kelmar::test {

/// A text as a widget hands it to the painter: what a person sees of it, and not what the widget
/// was told to show.
struct PaintedText {
    QString text;
    QRectF place; ///< of its lines, in the widget
};

/// What `widget` itself paints of text, without what is inside it, in the order of painting.
std::vector<PaintedText> paintedTexts(QWidget& widget);

/// `text` without blanks and without what only guides a line's breaks and direction.
QString inked(const QString& text);

} // namespace kelmar::test
