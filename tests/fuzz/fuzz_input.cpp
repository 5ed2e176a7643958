#include "fuzz/fuzz_input.h"

#include "datafiles/line_reader.h"
#include "datafiles/record.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QDir &folder()
{
    static const QString memory = u"/dev/shm"_s;
    static const QTemporaryDir made((QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
                                    u"/tarvold-fuzz-XXXXXX"_s);
    static const QDir dir(made.path());
    return dir;
}

} // namespace

FuzzInput::FuzzInput(QByteArrayView input) : m_bytes(input)
{
    constexpr unsigned kMark = 0x80;
    constexpr unsigned kMostSteering = 0x1F;
    if (input.isEmpty() || (static_cast<unsigned char>(input.back()) & kMark) == 0) {
        return;
    }
    m_bytes.chop(1);
    const auto wished = qsizetype(static_cast<unsigned char>(input.back()) & kMostSteering);
    const qsizetype count = std::min(wished, m_bytes.size());
    m_steering = m_bytes.last(count);
    m_bytes.chop(count);
}

int FuzzInput::below(int end)
{
    if (m_steering.isEmpty()) {
        return 0;
    }
    const auto byte = static_cast<unsigned char>(m_steering.front());
    m_steering = m_steering.sliced(1);
    return byte % end;
}

QByteArray wholeRecords(QByteArrayView bytes, int linesPerRecord)
{
    constexpr int kMostRecords = 8;
    QByteArray rest;
    for (int line = 2; line < linesPerRecord; ++line) {
        rest.append(static_cast<char>('0' + line)).append(kLineEnd);
    }
    QByteArray file;
    LineReader reader(bytes);
    for (int record = 0; record < kMostRecords && !reader.atEnd(); ++record) {
        file.append(reader.readLine()).append(kLineEnd);
        file.append(reader.readLine()).append(kLineEnd).append(rest);
    }
    return file;
}

QString pathInMemory(const char *name)
{
    return folder().filePath(QString::fromUtf8(name));
}

QByteArray filesInMemory()
{
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return folder().entryList(all, QDir::Name).join(u' ').toUtf8();
}

void putInMemory(const QString &path, QByteArrayView bytes)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                file.write(bytes.data(), bytes.size()) == bytes.size(),
            "an input can be put into a file");
}

void require(bool holds, const char *what)
{
    if (!holds) {
        static_cast<void>(std::fprintf(stderr, "This does not hold: %s\n", what));
        std::abort();
    }
}

} // namespace tarvold::testing

/// Most time goes into keeping freed memory and where it came from; small inputs need little.
extern "C" const char *__asan_default_options() // NOLINT(*-reserved-identifier)
{
    return "quarantine_size_mb=16:malloc_context_size=6";
}
