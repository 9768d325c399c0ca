#include "ui/qt/menu_bar.hpp"

#include "ui/look.hpp"
#include "ui/qt/colours.hpp"

#include <QPainter>

namespace kelmar {

MenuBar::MenuBar(QWidget* parent) : QMenuBar(parent) {}

void MenuBar::setDimmed(bool dimmed) {
    if (dimmed != dimmed_) {
        dimmed_ = dimmed;
        update();
    }
}

void MenuBar::paintEvent(QPaintEvent* /*event*/) {
    // The style draws the line in one piece per menu, with gaps at fractional scales.
    const Colours colours(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colours.page);
    painter.fillRect(0, height() - Look::hairline, width(), Look::hairline, colours.hairline);
    for (const QAction* const menu : actions()) {
        const QRect place = actionGeometry(const_cast<QAction*>(menu));
        const bool open = menu == activeAction();
        if (open) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(Qt::NoPen);
            painter.setBrush(colours.accent);
            painter.drawRoundedRect(place.adjusted(0, 0, 0, -Look::hairline), Look::controlRadius,
                                    Look::controlRadius);
        }
        painter.setPen(open ? colours.onAccent : colours.text);
        painter.drawText(place, Qt::AlignCenter, menu->text());
    }
    if (dimmed_) {
        painter.fillRect(rect(), colours.scrim);
    }
}

} // namespace kelmar
