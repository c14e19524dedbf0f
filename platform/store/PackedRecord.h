#pragma once

#include <QByteArrayView>
#include <QDateTime>
#include <QString>
#include <QUtf8StringView>
#include <memory>
#include <optional>
#include <vector>

// The values of one record in one block of memory: what a fetch of very many records keeps of each. Values
// are decoded when asked for. The caller knows the type of each value and asks for no other.
class PackedRecord
{
public:
    // Makes records one after another, in the same scratch memory.
    class Packer
    {
    public:
        void start(int valueCount);
        void addAbsent();
        void addBytes(QByteArrayView bytes);
        template <typename Number>
        void addNumber(Number number)
        {
            addBytes({reinterpret_cast<const char*>(&number), sizeof number});
        }
        // Every value has been added.
        [[nodiscard]] PackedRecord finish() const;

    private:
        void startValue(quint32 flags);

        std::vector<char> scratch;
        std::size_t next = 0;
    };

    PackedRecord() = default;
    explicit operator bool() const { return block != nullptr; }

    [[nodiscard]] std::optional<QString> text(int index) const;
    // The same as it lies in the block, for as long as the record stays.
    [[nodiscard]] std::optional<QUtf8StringView> utf8(int index) const;
    [[nodiscard]] std::optional<qint16> int16(int index) const;
    [[nodiscard]] std::optional<QDateTime> date(int index) const;

private:
    // The block starts with where each value begins, and where the last ends.
    [[nodiscard]] std::optional<QByteArrayView> bytes(int index) const;
    template <typename Number>
    [[nodiscard]] std::optional<Number> number(int index) const;

    std::unique_ptr<char[]> block;
};
