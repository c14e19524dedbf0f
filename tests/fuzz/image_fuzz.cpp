#include "platform/toolkit/UIImage.h"
#include "tests/fuzz/FuzzTarget.h"
#include "tests/support/OpenedFiles.h"

namespace {

// Qt looks for its plugins and its logging rules when it first decodes.
void letQtOpenItsFiles()
{
    static const QSize size = imageSizeOfData("\xff\xd8\xff");
    Q_UNUSED(size)
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    letQtOpenItsFiles();
    const OpenedFiles opened;
    const QSize announced = imageSizeOfData(bytes);
    const QImage picture = imageWithData(bytes);
    require(opened.paths().isEmpty(), "decoding opens no file");
    require(picture.isNull() || !announced.isEmpty(), "a picture has a size before it is decoded");
    require(qint64(picture.width()) * picture.height() <= 33'554'432, "large pictures are decoded smaller");
    return 0;
}
