#pragma once

#include "platform/foundation/LowerCaseSearch.h"
#include "platform/store/NSEntityDescription.h"
#include "platform/store/PackedRecord.h"

// The values of one record in memory: packed as they were read until the first change, then each on its own,
// with a note of which changed since the last save. A binary value is here only while it is changed;
// otherwise it stays in the store.
class RecordValues
{
public:
    // A new record: its defaults, all of them changed.
    [[nodiscard]] static RecordValues defaultsOf(const NSEntityDescription& entity);
    void load(PackedRecord record) { packed = std::move(record); }

    [[nodiscard]] std::optional<QString> text(int index) const;
    [[nodiscard]] bool textMatches(int index, const LowerCaseSearch& search) const;
    [[nodiscard]] std::optional<qint16> int16(int index) const;
    [[nodiscard]] std::optional<QDateTime> date(int index) const;
    [[nodiscard]] std::optional<QByteArray> changedBinary(int index) const;
    // Of a binary attribute that did not change: absent.
    [[nodiscard]] AttributeValue value(int index, AttributeType type) const;

    void set(int index, AttributeValue value, const NSEntityDescription& entity);
    [[nodiscard]] bool isChanged(int index) const { return (changed >> index & 1U) != 0; }
    // The changes were saved.
    void settle(const NSEntityDescription& entity);

private:
    template <typename T>
    [[nodiscard]] std::optional<T> unpackedValue(int index) const;
    void unpack(const NSEntityDescription& entity);

    PackedRecord packed;
    std::unique_ptr<std::vector<AttributeValue>> unpacked;
    quint64 changed = 0;
};
