#include "platform/store/PackedRecord.h"

#include <QTimeZone>
#include <cstring>

namespace {

using Offset = quint32;
constexpr Offset absentFlag = 0x80000000U;

Offset offsetAt(const char* block, std::size_t index)
{
    Offset offset = 0;
    std::memcpy(&offset, block + index * sizeof offset, sizeof offset);
    return offset;
}

} // namespace

void PackedRecord::Packer::start(int valueCount)
{
    next = 0;
    scratch.resize((static_cast<std::size_t>(valueCount) + 1) * sizeof(Offset));
}

void PackedRecord::Packer::startValue(quint32 flags)
{
    const auto offset = static_cast<Offset>(scratch.size()) | flags;
    std::memcpy(scratch.data() + next * sizeof offset, &offset, sizeof offset);
    ++next;
}

void PackedRecord::Packer::addAbsent()
{
    startValue(absentFlag);
}

void PackedRecord::Packer::addBytes(QByteArrayView bytes)
{
    startValue(0);
    scratch.insert(scratch.end(), bytes.begin(), bytes.end());
}

PackedRecord PackedRecord::Packer::finish() const
{
    PackedRecord record;
    record.block = std::make_unique_for_overwrite<char[]>(scratch.size());
    std::memcpy(record.block.get(), scratch.data(), scratch.size());
    const auto end = static_cast<Offset>(scratch.size());
    std::memcpy(record.block.get() + next * sizeof end, &end, sizeof end);
    return record;
}

std::optional<QByteArrayView> PackedRecord::bytes(int index) const
{
    const auto position = static_cast<std::size_t>(index);
    const auto begin = offsetAt(block.get(), position);
    if (begin & absentFlag)
        return std::nullopt;
    const auto end = offsetAt(block.get(), position + 1) & ~absentFlag;
    return QByteArrayView(block.get() + begin, static_cast<qsizetype>(end - begin));
}

template <typename Number>
std::optional<Number> PackedRecord::number(int index) const
{
    const auto raw = bytes(index);
    if (!raw)
        return std::nullopt;
    Number number{};
    std::memcpy(&number, raw->data(), sizeof number);
    return number;
}

std::optional<QString> PackedRecord::text(int index) const
{
    const auto raw = bytes(index);
    return raw ? std::optional(QString::fromUtf8(*raw)) : std::nullopt;
}

std::optional<QUtf8StringView> PackedRecord::utf8(int index) const
{
    const auto raw = bytes(index);
    return raw ? std::optional(QUtf8StringView(raw->data(), raw->size())) : std::nullopt;
}

std::optional<qint16> PackedRecord::int16(int index) const
{
    return number<qint16>(index);
}

std::optional<QDateTime> PackedRecord::date(int index) const
{
    const auto milliseconds = number<qint64>(index);
    return milliseconds ? std::optional(QDateTime::fromMSecsSinceEpoch(*milliseconds, Qt::UTC))
                        : std::nullopt;
}
