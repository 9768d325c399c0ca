#include "ui/qt/slim_scroll_bar.hpp"

#include "ui/qt/colours.hpp"
#include "ui/qt/contrast.hpp"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

namespace kelmar {

namespace {

constexpr int sideMargin = 2; ///< between the bar's edge and the handle that is drawn
constexpr int endMargin = 1;
constexpr int handleRadius = (Look::scrollBar - 2 * sideMargin) / 2;

} // namespace

SlimScrollBar::SlimScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
    setFixedWidth(Look::scrollBar);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void SlimScrollBar::paintEvent(QPaintEvent* /*event*/) {
    // The style decides where the handle can be grabbed.
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    const Colours colours(palette());
    const double share = isSliderDown() ? 0.5 : underMouse() ? 0.3 : 0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(colours.scrollBar, colours.text, share));
    painter.drawRoundedRect(QRectF(handle).adjusted(sideMargin, endMargin, -sideMargin, -endMargin),
                            handleRadius, handleRadius);
}

} // namespace kelmar
