#pragma once

#include <QQuickImageProvider>

// Draws a symbol in one colour, given as the number 0xAARRGGBB in decimal digits:
// "image://symbol/square.and.arrow.up?4280295456"; in its own colours where none
// follows. An unknown symbol is an empty picture.
class SymbolProvider : public QQuickImageProvider
{
public:
    SymbolProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};
