#include "platform/foundation/Console.h"

#include <cstdio>
#include <cstdlib>

namespace {

void writeLine(std::FILE* stream, const QByteArray& line)
{
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

} // namespace

void console(const QString& line)
{
    writeLine(stdout, line.toUtf8());
}

void consoleError(const QString& line)
{
    writeLine(stderr, line.toUtf8());
}

void fatalError(const QString& text)
{
    consoleError(QStringLiteral("Fatal error: ") + text);
    std::abort();
}
