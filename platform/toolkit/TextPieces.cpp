#include "platform/toolkit/TextPieces.h"

#include "platform/toolkit/UIImage.h"

namespace {

constexpr qsizetype longestPiece = 2000;

} // namespace

void TextPieces::cut(const QString& text)
{
    beginResetModel();
    whole = text;
    runs.clear();
    places.clear();
    for (qsizetype from = 0; from < text.size();) {
        qsizetype length = std::min(longestPiece, text.size() - from);
        const qsizetype lineEnd =
            from + length < text.size() ? QStringView(text).mid(from, length).lastIndexOf(u'\n') : -1;
        if (lineEnd >= 0)
            length = lineEnd;
        places.push_back({from, length, 0});
        from += length + (lineEnd >= 0 ? 1 : 0);
    }
    endResetModel();
}

void TextPieces::cut(const NSAttributedString& text)
{
    beginResetModel();
    whole = text.string();
    runs = text.runs();
    places.clear();
    qsizetype from = 0;
    for (const NSAttributedString::Run& run : runs) {
        // What follows stands on a line of its own anyway.
        const qsizetype lineFeed = run.text.endsWith(u'\n') ? 1 : 0;
        places.push_back({from, run.text.size() - lineFeed, places.size()});
        from += run.text.size();
    }
    endResetModel();
}

QString TextPieces::piece(int row) const
{
    const Place& place = places[static_cast<std::size_t>(row)];
    return whole.mid(place.from, place.length);
}

QString TextPieces::replace(int row, const QString& replacement)
{
    Place& changed = places[static_cast<std::size_t>(row)];
    whole.replace(changed.from, changed.length, replacement);
    const qsizetype growth = replacement.size() - changed.length;
    changed.length = replacement.size();
    for (std::size_t next = static_cast<std::size_t>(row) + 1; next < places.size(); ++next)
        places[next].from += growth;
    return whole;
}

int TextPieces::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(places.size());
}

QVariant TextPieces::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != PieceRole)
        return {};
    TextPiece shown;
    if (runs.empty()) {
        shown.text = piece(index.row());
        return QVariant::fromValue(shown);
    }
    const NSAttributedString::Run& run = runs[places[static_cast<std::size_t>(index.row())].run];
    shown.fontSize = run.style.fontSize;
    shown.centred = run.style.centred;
    if (!run.attachment) {
        shown.text = piece(index.row());
        return QVariant::fromValue(shown);
    }
    shown.image =
        run.attachment->encoded.isEmpty() ? run.attachment->image : imageWithData(run.attachment->encoded);
    shown.imageSize = run.attachment->size;
    return QVariant::fromValue(shown);
}

QHash<int, QByteArray> TextPieces::roleNames() const
{
    return {{PieceRole, "piece"}};
}
