#pragma once

#include <QRectF>
#include <QString>
#include <functional>
#include <vector>

class QPainter;

// What a painter draws as one: characters of one font and direction that stand side by side.
struct PdfTextItem
{
    QString text;
    bool rightToLeft;
    // As the painter was told; y runs downwards.
    QRectF box;
    double baseline;
};

// What `draw` draws on a paper of `size` dots: in the order and in the pieces in which a PDF file gets it.
[[nodiscard]] std::vector<PdfTextItem> pdfTextItems(const QSize& size, int dotsPerInch,
                                                    const std::function<void(QPainter&)>& draw);
