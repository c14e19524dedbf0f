#include "platform/pdf/PdfTextItems.h"

#include <QPaintEngine>
#include <QPainter>

namespace {

class ItemsEngine final : public QPaintEngine
{
public:
    ItemsEngine()
        : QPaintEngine(QPaintEngine::AllFeatures)
    {
    }

    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*place*/, const QPixmap& /*picture*/, const QRectF& /*part*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    [[nodiscard]] Type type() const override { return QPaintEngine::User; }

    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        const QRectF box(place.x(), place.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        items.push_back({item.text(), item.renderFlags().testFlag(QTextItem::RightToLeft), box, place.y()});
    }

    std::vector<PdfTextItem> items;
};

class ItemsDevice final : public QPaintDevice
{
public:
    ItemsDevice(const QSize& size, int dotsPerInch)
        : paper(size)
        , resolution(dotsPerInch)
    {
    }

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &engine; }
    std::vector<PdfTextItem> takeItems() { return std::move(engine.items); }

protected:
    [[nodiscard]] int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return paper.width();
        case PdmHeight:
            return paper.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return resolution;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    const QSize paper;
    const int resolution;
    mutable ItemsEngine engine;
};

} // namespace

std::vector<PdfTextItem> pdfTextItems(const QSize& size, int dotsPerInch,
                                      const std::function<void(QPainter&)>& draw)
{
    ItemsDevice device(size, dotsPerInch);
    QPainter painter(&device);
    draw(painter);
    painter.end();
    return device.takeItems();
}
