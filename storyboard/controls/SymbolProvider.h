#pragma once

#include <QQuickImageProvider>

// Draws a symbol in one colour: "image://symbol/square.and.arrow.up?#202020"; in its own colours where none
// follows. An unknown symbol is an empty picture.
class SymbolProvider : public QQuickImageProvider
{
public:
    SymbolProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};
