#pragma once

#include "platform/toolkit/NSAttributedString.h"

#include <QAbstractListModel>
#include <QtQmlIntegration/qqmlintegration.h>

// A stretch of a long text, or a picture in it.
struct TextPiece
{
    Q_GADGET
    QML_VALUE_TYPE(textPiece)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(double fontSize MEMBER fontSize FINAL)
    Q_PROPERTY(bool centred MEMBER centred FINAL)
    Q_PROPERTY(QImage image MEMBER image FINAL)
    Q_PROPERTY(QSizeF imageSize MEMBER imageSize FINAL)

public:
    QString text;
    // Points; 0: the layout's own size.
    double fontSize = 0;
    bool centred = false;
    // Null: the piece is text.
    QImage image;
    QSizeF imageSize;

    bool operator==(const TextPiece&) const = default;
};

// A text cut into pieces of which only those in sight need be laid out. Pieces of a plain text end with a
// line where there are lines; the line feed between two pieces belongs to neither.
class TextPieces : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to a text view")

public:
    static constexpr int PieceRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    void cut(const QString& text);
    void cut(const NSAttributedString& text);

    [[nodiscard]] const QString& text() const { return whole; }
    // The text of a piece of a plain text.
    [[nodiscard]] QString piece(int row) const;
    // The text as it is once the piece of a plain text reads `replacement`. The pieces stay as they are but
    // for their places, so that a cursor in one is not lost.
    [[nodiscard]] QString replace(int row, const QString& replacement);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Place
    {
        qsizetype from;
        qsizetype length;
        // The number of its run; a plain text is one run.
        std::size_t run;
    };

    QString whole;
    std::vector<NSAttributedString::Run> runs;
    std::vector<Place> places;
};
