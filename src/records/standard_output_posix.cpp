#include "records/standard_output.h"

#include <cstdio>

namespace tarvold::records::standardoutput {

namespace {

bool write(FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8() + '\n';
    const auto length = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, length, stream) == length && std::fflush(stream) == 0;
}

} // namespace

bool writeLine(const QString &text)
{
    return write(stdout, text);
}

void writeErrorLine(const QString &text)
{
    write(stderr, text); // there is nowhere to say that this failed
}

} // namespace tarvold::records::standardoutput
