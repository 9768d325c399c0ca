#include "tests/ui/qt/painted_texts.hpp"

#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

namespace kelmar::test {

namespace {

/// Takes down the texts that are painted, and nothing else.
class TextEngine : public QPaintEngine {
public:
    TextEngine() : QPaintEngine(QPaintEngine::AllFeatures) {}

    bool begin(QPaintDevice* /*device*/) override { return true; }

    bool end() override { return true; }

    void updateState(const QPaintEngineState& /*state*/) override {}

    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*what*/, const QRectF& /*of*/) override {}

    void drawPath(const QPainterPath& /*path*/) override {}

    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}

    void drawTextItem(const QPointF& point, const QTextItem& item) override {
        const QRectF place(point.x(), point.y() - item.ascent(), item.width(),
                           item.ascent() + item.descent());
        const qreal scale = 1 / painter()->device()->devicePixelRatioF();
        const QTransform toWidget =
            painter()->combinedTransform() * QTransform::fromScale(scale, scale);
        texts.push_back({item.text(), toWidget.mapRect(place)});
    }

    [[nodiscard]] Type type() const override { return QPaintEngine::User; }

    std::vector<PaintedText> texts;
};

/// As large and as fine as a widget.
class TextDevice : public QPaintDevice {
public:
    explicit TextDevice(const QWidget& widget) : widget_(widget) {}

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &engine; }

    mutable TextEngine engine;

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth:
            return widget_.width();
        case PdmHeight:
            return widget_.height();
        case PdmDepth:
            return 32;
        case PdmDpiX:
        case PdmPhysicalDpiX:
            return widget_.logicalDpiX();
        case PdmDpiY:
        case PdmPhysicalDpiY:
            return widget_.logicalDpiY();
        case PdmDevicePixelRatio:
            return static_cast<int>(widget_.devicePixelRatio());
        case PdmDevicePixelRatioScaled:
            return qRound(widget_.devicePixelRatioF() * devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    const QWidget& widget_;
};

} // namespace

std::vector<PaintedText> paintedTexts(QWidget& widget) {
    TextDevice device(widget);
    widget.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    return device.engine.texts;
}

QString inked(const QString& text) {
    QString ink;
    for (const QChar character : text) {
        if (!character.isSpace() && character.category() != QChar::Other_Format) {
            ink += character;
        }
    }
    return ink;
}

} // namespace kelmar::test
