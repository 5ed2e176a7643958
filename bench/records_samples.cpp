#include "records_samples.h"

#include "records/catalog.h"

#include <QFile>

#include <array>

namespace tarvold::bench {
namespace {

using namespace Qt::StringLiterals;
using records::Catalog;
using records::KnownField;

/// A line of a typical ending.
QByteArray lineOf(const Catalog &catalog, int field, int number)
{
    constexpr std::array kNames = {"Rocco Vance", "Dex Vance",      "The Masked Comet",
                                   "Lena Storm",  "Bruno Ironside", "Any"};
    constexpr std::array kSentences = {
        "<att1fullname> whips <recfullname> into the corner, and charges in with a clothesline!",
        "The crowd is on its feet as the referee checks the shoulders: one, two... and three!",
        "-BLANK-", "-BLANK-", "-BLANK-"};
    const auto pick = [number, field](const auto &from) {
        return from[std::size_t(number * 7 + field * 3) % std::size_t(std::size(from))];
    };
    const KnownField &known = catalog.fields()[std::size_t(field)];
    if (field == catalog.firstCommentary()) {
        return QByteArray(kSentences.front()) + " That was number " + QByteArray::number(number);
    }
    if (catalog.isCommentary(field)) {
        return pick(kSentences);
    }
    if (known.words.isEmpty()) {
        return pick(kNames);
    }
    const bool isAny = (number + field) % 3 != 0 && known.words.contains(u"Any"_s);
    return isAny ? "Any" : known.words.at((number + field) % known.words.size()).toLatin1();
}

} // namespace

qint64 writeEndings(const QString &file, Endings endings)
{
    const Catalog &catalog = Catalog::of(DataFileKind::NormalEndings);
    const char *const lineEnd = endings == Endings::Sound ? "\r\n" : "\n";
    QByteArray bytes;
    for (int number = 0; number < kEndings; ++number) {
        for (int field = 0; field < catalog.fieldCount(); ++field) {
            bytes += lineOf(catalog, field, number) + lineEnd;
        }
    }
    QFile opened(file);
    if (!opened.open(QIODevice::WriteOnly) || opened.write(bytes) != bytes.size()) {
        qFatal("the file for the benchmark cannot be written");
    }
    return bytes.size();
}

} // namespace tarvold::bench
