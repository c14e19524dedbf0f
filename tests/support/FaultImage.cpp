#include "tests/support/FaultImage.h"

#include <cstring>

qint64 FaultImage::read(qint64 offset, char* target, qint64 count) const
{
    const auto available = std::clamp<qint64>(length - offset, 0, count);
    for (qint64 done = 0; done < available;) {
        const auto within = (offset + done) % blockSize;
        const auto part = std::min(available - done, blockSize - within);
        std::memcpy(target + done, blocks.at((offset + done) / blockSize).constData() + within,
                    static_cast<std::size_t>(part));
        done += part;
    }
    return available;
}

void FaultImage::write(qint64 offset, QByteArrayView bytes)
{
    resize(std::max(length, offset + bytes.size()));
    for (qint64 done = 0; done < bytes.size();) {
        const auto within = (offset + done) % blockSize;
        const auto part = std::min(bytes.size() - done, blockSize - within);
        std::memcpy(blocks[(offset + done) / blockSize].data() + within, bytes.data() + done,
                    static_cast<std::size_t>(part));
        done += part;
    }
}

void FaultImage::resize(qint64 size)
{
    static const QByteArray zeros(blockSize, '\0');
    if (size < length && size % blockSize != 0)
        std::memset(blocks[size / blockSize].data() + size % blockSize, 0,
                    static_cast<std::size_t>(blockSize - size % blockSize));
    blocks.resize((size + blockSize - 1) / blockSize, zeros);
    length = size;
}
