#include "ui/qt/symbols.hpp"

#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace kelmar {

namespace {

QPixmap drawn(const std::string& name, int side, qreal ratio) {
    QSvgRenderer renderer(":/symbols/" + QString::fromStdString(name) + ".svg");
    const int pixels = qRound(side * ratio);
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    if (renderer.isValid()) {
        QPainter painter(&pixmap);
        renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    }
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QString key(const std::string& name, int side, qreal ratio) {
    return QString::fromStdString(name) + ' ' + QString::number(side) + ' ' +
           QString::number(ratio);
}

} // namespace

QPixmap symbol(const std::string& name, const QColor& colour, int side, qreal ratio) {
    const QString known = key(name, side, ratio) + ' ' + colour.name();
    QPixmap pixmap;
    if (!QPixmapCache::find(known, &pixmap)) {
        pixmap = drawn(name, side, ratio);
        {
            QPainter painter(&pixmap);
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(QRect(0, 0, side, side), colour);
        }
        QPixmapCache::insert(known, pixmap);
    }
    return pixmap;
}

QPixmap picture(const std::string& name, int side, qreal ratio) {
    const QString known = key(name, side, ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(known, &pixmap)) {
        pixmap = drawn(name, side, ratio);
        QPixmapCache::insert(known, pixmap);
    }
    return pixmap;
}

} // namespace kelmar
