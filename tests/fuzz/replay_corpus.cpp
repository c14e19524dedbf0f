// Stands in for the fuzzer: feeds the files of the folder that is the one argument to the target, once each.
#include "tests/fuzz/FuzzTarget.h"

#include <QDirIterator>
#include <QFile>
#include <cstdio>

int main(int argc, char** argv)
{
    int replayed = 0;
    QDirIterator files(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""), QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const QByteArray bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(bytes.constData()),
                               static_cast<std::size_t>(bytes.size()));
        ++replayed;
    }
    std::printf("%d inputs\n", replayed);
    return replayed > 0 ? 0 : 1;
}
