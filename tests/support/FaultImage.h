#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <map>

// The bytes of one file in memory, in shared blocks: copying a file copies no bytes until either is written.
class FaultImage
{
public:
    [[nodiscard]] qint64 size() const { return length; }
    // Copies what lies at `offset` and returns how many bytes there were.
    [[nodiscard]] qint64 read(qint64 offset, char* target, qint64 count) const;
    // Grows the file when needed; a gap reads as zeros.
    void write(qint64 offset, QByteArrayView bytes);
    void resize(qint64 size);

private:
    static constexpr qint64 blockSize = 4096;

    // Blocks are whole; what lies behind `length` is zero.
    QList<QByteArray> blocks;
    qint64 length = 0;
};

// All files of a disk by their paths.
using FaultImages = std::map<QString, FaultImage>;
