#pragma once

#include <QByteArray>
#include <map>
#include <vector>

// The numbered objects of a PDF file as QPdfWriter writes it: one plain table of them, none packed into
// streams. A file written otherwise has no pages here, and stays as it is.
//
// Objects are read as they were; new versions stand in the file once they are appended to it.
class PdfObjects
{
public:
    // `pdf` outlives this, and is nobody else's to change meanwhile.
    explicit PdfObjects(QByteArray& pdf);

    // The objects that describe the pages, in order.
    [[nodiscard]] std::vector<int> pages() const;
    // What an object says, without its stream; empty if there is no such object.
    [[nodiscard]] QByteArray description(int object) const;
    // The object that `key` ("/Contents") of an object refers to; 0: none.
    [[nodiscard]] int reference(int object, const QByteArray& key) const;
    // The stream of an object, decoded; empty if it has none.
    [[nodiscard]] QByteArray stream(int object) const;

    // These return the number of the object that is added.
    int add(QByteArray description);
    int addStream(const QByteArray& content);
    void replace(int object, QByteArray description);
    void replaceStream(int object, const QByteArray& content);

    // Appends what was added and replaced to the file, once.
    void appendChanges();

private:
    [[nodiscard]] QByteArray value(int object, const QByteArray& key) const;
    [[nodiscard]] QByteArray trailer() const;

    QByteArray& file;
    qsizetype table = 0;
    // Where the object of each number begins; the first is no object.
    std::vector<qsizetype> offsets;
    std::map<int, QByteArray> changes;
    int nextNumber = 0;
};
