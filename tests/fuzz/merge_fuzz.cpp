// The import of any bytes into any others, compared with a plain and slow one.

#include "datafiles/import_merge.h"
#include "datafiles/slow_merge.h"
#include "fuzz/fuzz_input.h"

#include <QFile>

namespace tarvold::testing {
namespace {

/// Two files and what to do with them.
struct Pair
{
    QByteArray source;
    std::optional<QByteArray> target;
    bool self = false; ///< the source is the target
    DataFileKind kind = DataFileKind::Stipulations;
};

Pair pairFrom(FuzzInput &input)
{
    Pair pair;
    // Only stipulations are compared with the target, so every other number means them.
    const auto kind = std::size_t(input.below(2 * int(kDataFileKinds.size())));
    pair.kind =
        kind < kDataFileKinds.size() ? kDataFileKinds.at(kind).kind : DataFileKind::Stipulations;
    const int lines = rowOf(pair.kind).linesPerRecord();
    pair.self = input.onceIn(8);
    const bool isThere = !input.onceIn(8);
    const bool whole = !input.onceIn(3);
    const qsizetype cut = input.bytes().size() * input.below(256) / 256;
    const auto file = [&](QByteArrayView bytes) {
        return whole ? wholeRecords(bytes, lines) : bytes.toByteArray();
    };
    pair.source = file(input.bytes().sliced(cut));
    if (isThere) {
        pair.target = file(cut == 0 ? input.bytes() : input.bytes().first(cut));
    }
    const auto tornOff = qsizetype(input.below(4));
    pair.source.chop(tornOff);
    return pair;
}

void checkMerge(const Pair &pair)
{
    static const QString source = pathInMemory("source.tvd");
    static const QString other = pathInMemory("target.tvd");
    const QString &target = pair.self ? source : other;
    putInMemory(source, pair.source);
    QFile::remove(other);
    if (!pair.self && pair.target) {
        putInMemory(target, *pair.target);
    }
    const MergeOutcome expected = mergeSlowly(source, target, pair.kind);
    QStringList messages;
    const auto imported = importRecords({source, target, pair.kind},
                                        [&](const QString &message) { messages << message; });
    require(imported.has_value() == expected.succeeded,
            "the import is done exactly when it can be");
    require(imported || (imported.error().error.outcome == FileOutcome::Unchanged &&
                         !imported.error().error.cause.isEmpty()),
            "a failure has a cause and leaves the target as it was");
    require(messages == expected.messages, "the duplicates told are those of the plain import");
    require(bytesIfThere(target) == expected.target, "the target is that of the plain import");
    require(pair.self || bytesIfThere(source) == pair.source, "the source is as it was");
    require(filesInMemory() == (bytesIfThere(other) ? "source.tvd target.tvd" : "source.tvd"),
            "there is no file but these two");
}

} // namespace
} // namespace tarvold::testing

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    tarvold::testing::FuzzInput input({data, qsizetype(size)});
    tarvold::testing::checkMerge(tarvold::testing::pairFrom(input));
    return 0;
}
