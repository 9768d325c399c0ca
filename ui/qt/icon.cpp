#include "ui/qt/icon.hpp"

#include "ui/look.hpp"
#include "ui/qt/colours.hpp"
#include "ui/qt/symbols.hpp"

#include <QPainter>
#include <QTimerEvent>
#include <algorithm>

namespace kelmar {

namespace {

constexpr int frame = 33;   ///< milliseconds per frame of a spinner
constexpr int turn = 1'000; ///< milliseconds per revolution
constexpr int spokes = 8;

} // namespace

IconLabel::IconLabel(int width, int height, QWidget* parent) : QLabel(parent) {
    setFixedSize(width, height);
}

void IconLabel::become(Kind kind, const std::string& name, Tint tint, int size) {
    if (kind == kind_ && name == name_ && tint == tint_ && size == size_) {
        return;
    }
    kind_ = kind;
    name_ = name;
    tint_ = tint;
    size_ = size;
    turnWhileSeen();
    update();
}

void IconLabel::showSymbol(const std::string& name, Tint tint, int size) {
    become(Kind::symbol, name, tint, size);
}

void IconLabel::showPicture(const std::string& name) {
    become(Kind::picture, name, Tint::secondary, height());
}

void IconLabel::showSpinner(int size) {
    become(Kind::spinner, "", Tint::secondary, size);
}

void IconLabel::turnWhileSeen() {
    if (kind_ == Kind::spinner && isVisible()) {
        if (!timer_.isActive()) {
            turning_.start();
            timer_.start(frame, this);
        }
    } else {
        timer_.stop();
    }
}

void IconLabel::showEvent(QShowEvent* event) {
    QLabel::showEvent(event);
    turnWhileSeen();
}

void IconLabel::hideEvent(QHideEvent* event) {
    QLabel::hideEvent(event);
    timer_.stop();
}

void IconLabel::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId()) {
        QLabel::timerEvent(event);
    } else if (!window()->isMinimized()) {
        update();
    }
}

void IconLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (kind_ == Kind::spinner) {
        paintSpinner(painter);
        return;
    }
    const QPixmap pixmap =
        kind_ == Kind::symbol
            ? symbol(name_, Colours(palette()).of(tint_), size_, devicePixelRatioF())
        : kind_ == Kind::picture ? kelmar::picture(name_, size_, devicePixelRatioF())
                                 : QPixmap();
    painter.drawPixmap((width() - size_) / 2, (height() - size_) / 2, pixmap);
}

void IconLabel::paintSpinner(QPainter& painter) const {
    // From the clock, not by counting ticks: late frames don't slow the spinner down.
    const double position =
        timer_.isActive() ? static_cast<double>(turning_.elapsed() % turn) / turn * spokes : 0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    QColor colour = Colours(palette()).text;
    for (int spoke = 0; spoke < spokes; ++spoke) {
        double behind = position - spoke;
        if (behind < 0) {
            behind += spokes;
        }
        colour.setAlphaF(static_cast<float>(std::max(0.25, 0.9 - behind * 0.65 / spokes * 1.4)));
        painter.setPen(QPen(colour, size_ / 9.0, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -size_ * 0.26), QPointF(0, -size_ * 0.45));
        painter.rotate(360.0 / spokes);
    }
}

} // namespace kelmar
