#include "storyboard/controls/SymbolProvider.h"

#include "resources/Resources.h"

#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr QSize defaultSymbolSize(28, 28);

QImage drawnSymbol(const QString& name, const QSize& size)
{
    QImage symbol(size, QImage::Format_ARGB32_Premultiplied);
    symbol.fill(Qt::transparent);
    QSvgRenderer renderer(symbolPath(name));
    QPainter painter(&symbol);
    renderer.render(&painter);
    return symbol;
}

void tint(QImage& symbol, const QColor& color)
{
    QPainter painter(&symbol);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(symbol.rect(), color);
}

} // namespace

SymbolProvider::SymbolProvider()
    : QQuickImageProvider(Image)
{
}

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QString name = id.section(QLatin1Char('?'), 0, 0);
    bool isTinted = false;
    const QRgb color = id.section(QLatin1Char('?'), 1).toUInt(&isTinted);
    QImage symbol = drawnSymbol(name, requestedSize.isValid() ? requestedSize : defaultSymbolSize);
    if (isTinted)
        tint(symbol, QColor::fromRgba(color));
    if (size != nullptr)
        *size = symbol.size();
    return symbol;
}
