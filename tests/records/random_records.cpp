#include "records/random_records.h"

namespace tarvold::records {
namespace {

using namespace Qt::StringLiterals;

constexpr const char *kNames[] = {"Rocco Vance",   "Rocco Vance,Dex Vance",
                                  "The Mauler",    "Ladder Match",
                                  "The Syndicate", "Steel Cage",
                                  "Dr. Pain",      "Kid Lightning",
                                  "El Toro Negro", "Big Sal Morelli",
                                  "Mick's Corner", "J.J. Dempsey",
                                  "Hell On Earth", "Anya Petrova",
                                  "XWL",           "2 Cold Cole",
                                  "Queen Bee",     "Last Man Standing"};
constexpr const char *kOddNames[] = {"Yes", "No", "Face", "Singles", "Any", "None", "10", "N/A"};
constexpr const char *kOddWords[] = {"Hardcore Legend", "Either", "Cage Match", "any", "yes",
                                     "Manager"};
constexpr const char *kOddLines[] = {"Any", "",       "Yes", "N/A", "10",
                                     "No",  "Normal", "Wow", "-",   " "};
constexpr const char *kSentences[] = {
    "%1 comes off the ropes and is met with a big boot!",
    "What a match! %1 can't believe it, and neither can I.",
    "The referee is down, and %1 reaches for the chair",
    "\"You'll pay for that,\" says %1.",
    "One... two... three! %1 wins it!",
    "%1 stares at %2 across the ring. The crowd is on its feet, and here it comes!",
    "Silence",
    "Nobody gets up from that one.",
    "Is that %2? It is!",
    "He is out cold",
};

template <std::size_t size>
const char *pick(Random &random, const char *const (&texts)[size])
{
    return texts[std::size_t(below(random, int(size)))];
}

QString randomTag(Random &random, const Catalog &catalog)
{
    return catalog.tags().at(std::size_t(below(random, int(catalog.tags().size())))).tag;
}

QByteArray number(Random &random)
{
    return QByteArray::number(1 + below(random, 100));
}

/// What an author puts into a field that is none of the commentary.
QByteArray usualLine(Random &random, const KnownField &field)
{
    const bool isName = field.words.isEmpty() && field.field->coding != Coding::Number;
    if (field.field->coding == Coding::AlwaysNo ||
        (!field.newText.isEmpty() && below(random, 5) < 2)) {
        return field.newText.toLatin1();
    }
    if (field.field->coding == Coding::Number) {
        return number(random);
    }
    if (isName) {
        return below(random, 6) == 0 && !field.newText.isEmpty() ? "Any" : pick(random, kNames);
    }
    return field.words.at(below(random, int(field.words.size()))).toLatin1();
}

/// Something that nobody expects in a field, but that its screen and the game take.
QByteArray oddLine(Random &random, const KnownField &field)
{
    const bool isCoded = !codedTexts(field.field->coding).empty();
    if (isCoded || field.field->coding == Coding::Number ||
        field.field->coding == Coding::AlwaysNo) {
        return usualLine(random, field);
    }
    return field.words.isEmpty() ? pick(random, kOddNames) : pick(random, kOddWords);
}

constexpr int kOddOneIn = 12;

QByteArray commentaryLine(Random &random, const Catalog &catalog, Writing writing,
                          const QByteArray &previous)
{
    const bool isOdd = writing == Writing::Odd && below(random, kOddOneIn) == 0;
    return isOdd ? QByteArray(pick(random, kOddLines)) : randomSentence(random, catalog, previous);
}

QByteArray detailsLine(Random &random, const KnownField &field, Writing writing)
{
    if (writing == Writing::Default && !field.newText.isEmpty()) {
        return field.newText.toLatin1();
    }
    const bool isOdd = writing == Writing::Odd && below(random, kOddOneIn) == 0;
    return isOdd ? oddLine(random, field) : usualLine(random, field);
}

} // namespace

int below(Random &random, int bound)
{
    return int(random() % unsigned(bound));
}

QByteArray randomSentence(Random &random, const Catalog &catalog, const QByteArray &previous)
{
    QString text = QLatin1StringView(pick(random, kSentences));
    text.replace("%1"_L1, randomTag(random, catalog)).replace("%2"_L1, randomTag(random, catalog));
    const QByteArray line = text.toLatin1();
    return line == previous ? randomSentence(random, catalog, previous) : line;
}

RecordLines randomRecord(Random &random, const Catalog &catalog, Writing writing)
{
    RecordLines record;
    const int written = writing == Writing::Default ? 1 : 1 + below(random, 10);
    for (int place = 0; place < catalog.fieldCount(); ++place) {
        if (!catalog.isCommentary(place)) {
            record << detailsLine(random, catalog.fields().at(std::size_t(place)), writing);
        } else if (place - catalog.firstCommentary() < written) {
            record << commentaryLine(random, catalog, writing, record.back());
        } else {
            record << QByteArray(kBlankLine);
        }
    }
    return record;
}

std::vector<RecordLines> randomRecords(Random &random, const Catalog &catalog, Writing writing,
                                       int count)
{
    std::vector<RecordLines> records;
    for (int record = 0; record < count; ++record) {
        records.push_back(randomRecord(random, catalog, writing));
    }
    return records;
}

QByteArray bytesOf(const RecordLines &record)
{
    return record.join(kLineEnd) + kLineEnd;
}

QByteArray bytesOf(const std::vector<RecordLines> &records)
{
    QByteArray bytes;
    for (const RecordLines &record : records) {
        bytes += bytesOf(record);
    }
    return bytes;
}

} // namespace tarvold::records
