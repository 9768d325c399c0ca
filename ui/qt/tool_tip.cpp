#include "ui/qt/tool_tip.hpp"

#include "ui/drawn_text.hpp"

#include <QHelpEvent>
#include <QToolTip>

namespace kelmar {

QString toolTipMarkup(const QString& plain) {
    constexpr int longest = 40; // characters without a possible line break
    const QString drawn = QString::fromStdString(drawnText(plain.toStdString()));
    QString broken;
    int unbroken = 0;
    for (const QChar character : drawn) {
        const bool breaks = character.isSpace() || character == QChar(0x200B);
        if (unbroken >= longest && !character.isLowSurrogate()) {
            broken += QChar(0x200B);
            unbroken = 0;
        }
        broken += character;
        unbroken = breaks ? 0 : unbroken + 1;
    }
    return "<qt>" + broken.toHtmlEscaped() + "</qt>";
}

void showToolTip(QWidget& widget, const QHelpEvent& event) {
    if (widget.toolTip().isEmpty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(event.globalPos(), toolTipMarkup(widget.toolTip()), &widget);
    }
}

} // namespace kelmar
