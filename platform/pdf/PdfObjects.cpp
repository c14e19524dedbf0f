#include "platform/pdf/PdfObjects.h"

#include <QList>

namespace {

constexpr qsizetype tableRow = 20;
constexpr qsizetype tableOffset = 10;
// qCompress and qUncompress put the length of the content before what PDF calls its compressed form.
constexpr qsizetype lengthPrefix = 4;

const QByteArray streamMark = "stream\n";
const QByteArray compressed = "/Filter /FlateDecode";

QByteArray textBetween(const QByteArray& text, const QByteArray& before, const QByteArray& after)
{
    const qsizetype start = text.indexOf(before);
    const qsizetype from = start + before.size();
    const qsizetype end = text.indexOf(after, from);
    return start < 0 || end < 0 ? QByteArray() : text.mid(from, end - from);
}

QByteArray inflated(const QByteArray& data)
{
    return qUncompress(QByteArray(lengthPrefix, '\0') + data);
}

QByteArray streamObject(const QByteArray& content)
{
    const QByteArray data = qCompress(content).mid(lengthPrefix);
    return "<<\n/Length " + QByteArray::number(data.size()) + '\n' + compressed + "\n>>\n" + streamMark +
           data + "\nendstream";
}

} // namespace

PdfObjects::PdfObjects(QByteArray& pdf)
    : file(pdf)
{
    const QByteArray start = "startxref\n";
    const qsizetype end = file.lastIndexOf(start);
    table = end < 0 ? -1 : file.mid(end + start.size(), tableRow).split('\n').front().trimmed().toLongLong();
    const QByteArray head = "xref\n0 ";
    if (table < 0 || file.mid(table, head.size()) != head)
        return;
    const qsizetype count = table + head.size();
    const qsizetype rows = file.indexOf('\n', count) + 1;
    nextNumber = file.mid(count, rows - count).trimmed().toInt();
    if (rows + nextNumber * tableRow > end)
        return;
    for (int number = 0; number < nextNumber; ++number)
        offsets.push_back(file.mid(rows + number * tableRow, tableOffset).toLongLong());
}

QByteArray PdfObjects::trailer() const
{
    return offsets.empty() ? QByteArray() : textBetween(file.mid(table), "trailer\n", "startxref\n");
}

std::vector<int> PdfObjects::pages() const
{
    const int root = textBetween(trailer(), "/Root ", " ").toInt();
    const QByteArray kids = textBetween(description(reference(root, "/Pages")), "/Kids", "]");
    std::vector<int> numbers;
    for (const QByteArray& kid : kids.mid(kids.indexOf('[') + 1).trimmed().split('\n'))
        if (const int number = kid.left(kid.indexOf(' ')).toInt(); number > 0)
            numbers.push_back(number);
    return numbers;
}

QByteArray PdfObjects::description(int object) const
{
    if (object < 1 || static_cast<std::size_t>(object) >= offsets.size())
        return {};
    const qsizetype from = file.indexOf('\n', offsets[static_cast<std::size_t>(object)]) + 1;
    const QByteArray whole = file.mid(from, file.indexOf("endobj", from) - from);
    const qsizetype stream = whole.indexOf(streamMark);
    return stream < 0 ? whole : whole.left(stream);
}

QByteArray PdfObjects::value(int object, const QByteArray& key) const
{
    const QByteArray text = description(object) + '\n';
    return textBetween(text, key + ' ', "\n").split('>').front().trimmed();
}

int PdfObjects::reference(int object, const QByteArray& key) const
{
    const QByteArray found = value(object, key);
    return found.endsWith(" 0 R") ? found.left(found.indexOf(' ')).toInt() : 0;
}

QByteArray PdfObjects::stream(int object) const
{
    const QByteArray about = description(object);
    const int lengthObject = reference(object, "/Length");
    const qsizetype length =
        (lengthObject > 0 ? description(lengthObject).trimmed() : value(object, "/Length")).toLongLong();
    if (length <= 0)
        return {};
    const qsizetype from = file.indexOf('\n', offsets[static_cast<std::size_t>(object)]) + 1;
    const QByteArray data = file.mid(from + about.size() + streamMark.size(), length);
    return about.contains(compressed) ? inflated(data) : data;
}

int PdfObjects::add(QByteArray description)
{
    const int number = nextNumber++;
    replace(number, std::move(description));
    return number;
}

int PdfObjects::addStream(const QByteArray& content)
{
    return add(streamObject(content));
}

void PdfObjects::replace(int object, QByteArray description)
{
    changes[object] = std::move(description);
}

void PdfObjects::replaceStream(int object, const QByteArray& content)
{
    replace(object, streamObject(content));
}

void PdfObjects::appendChanges()
{
    if (changes.empty())
        return;
    QByteArray update;
    QByteArray rows = "xref\n";
    for (const auto& [object, content] : changes) {
        const QByteArray number = QByteArray::number(object);
        const QByteArray offset = QByteArray::number(file.size() + update.size());
        rows += number + " 1\n" + offset.rightJustified(tableOffset, '0') + " 00000 n \n";
        update += number + " 0 obj\n" + content + "\nendobj\n";
    }
    const QByteArray size = "/Size ";
    QByteArray end = trailer();
    end.replace(size + QByteArray::number(offsets.size()),
                size + QByteArray::number(nextNumber) + "\n/Prev " + QByteArray::number(table));
    const QByteArray start = QByteArray::number(file.size() + update.size());
    update += rows + "trailer\n" + end + "startxref\n" + start + "\n%%EOF\n";
    file.reserve(file.size() + update.size());
    file += update;
}
