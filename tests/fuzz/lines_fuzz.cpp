// The line reader and the code page on any bytes.

#include "datafiles/code_page.h"
#include "datafiles/line_reader.h"
#include "fuzz/fuzz_input.h"

#include <QByteArrayList>

#include <cstring>

namespace tarvold::testing {
namespace {

/// The lines by the plain words of the rule.
QByteArrayList slowLines(const QByteArray &bytes)
{
    QByteArrayList lines;
    QByteArray line;
    for (const char byte : bytes) {
        line += byte;
        if (line.endsWith("\r\n")) {
            line.chop(2);
            lines << line;
            line.clear();
        }
    }
    if (!line.isEmpty()) {
        lines << line;
    }
    return lines;
}

void checkLines(const QByteArray &bytes)
{
    QByteArrayList lines;
    LineReader reader(bytes);
    while (!reader.atEnd()) {
        lines << reader.readLine().toByteArray();
    }
    require(lines == slowLines(bytes), "the lines are those of the plain rule");
    require(reader.readLine().isEmpty(), "there is only an empty line past the end");
    QByteArray joined = lines.join("\r\n");
    if (bytes.endsWith("\r\n")) {
        joined += "\r\n";
    }
    require(joined == bytes, "the lines hold all bytes");
}

void checkDecoding(const QByteArray &bytes)
{
    const QString text = codepage::decode(bytes);
    require(text.size() == bytes.size(), "every byte is one character");
    const codepage::Encoded encoded = codepage::encode(text);
    require(!encoded.missing && encoded.bytes == bytes, "bytes survive a round trip");
}

/// Takes the bytes as text, that is also as marks, surrogates and characters that no file holds.
void checkEncoding(const QByteArray &bytes)
{
    QString text(bytes.size() / qsizetype(sizeof(QChar)), Qt::Uninitialized);
    if (!text.isEmpty()) {
        std::memcpy(text.data(), bytes.constData(), std::size_t(text.size()) * sizeof(QChar));
    }
    const codepage::Encoded encoded = codepage::encode(text);
    if (encoded.missing) {
        require(encoded.bytes.isEmpty(), "a text with a missing character gives no bytes");
        return;
    }
    require(encoded.bytes.size() <= text.size(), "no character is more than one byte");
    const QString decoded = codepage::decode(encoded.bytes);
    require(decoded.normalized(QString::NormalizationForm_C) ==
                text.normalized(QString::NormalizationForm_C),
            "what can be encoded stays the same text");
}

} // namespace
} // namespace tarvold::testing

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    tarvold::testing::checkLines(bytes);
    tarvold::testing::checkDecoding(bytes);
    tarvold::testing::checkEncoding(bytes);
    return 0;
}
