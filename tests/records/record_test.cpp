#include "datafiles/record_fields.h"
#include "records/random_records.h"
#include "records/record.h"

#include <gtest/gtest.h>

namespace tarvold::records {
namespace {

using namespace Qt::StringLiterals;

const Catalog &endings()
{
    return Catalog::of(DataFileKind::NormalEndings);
}

RecordLines someEnding()
{
    Random random(3);
    RecordLines lines = randomRecord(random, endings(), Writing::Default);
    lines[endings().firstCommentary()] = "<att1fullname> wins it!";
    return lines;
}

TEST(RecordOfAFile, GivesTheTextsThatItsScreensShow)
{
    RecordLines lines = someEnding();
    const int finisher = endings().placeOf(fields::kAttackerFinisher);
    lines[finisher] = "t";
    lines[1] = "Caf\xe9 Brawl";
    const Record record(bytesOf(lines), endings());
    EXPECT_EQ(record.lineText(finisher), u"t"_s);
    EXPECT_EQ(record.shownText(finisher), u"Top Rope"_s);
    EXPECT_EQ(record.shownText(fields::kStipulation), u"Café Brawl"_s);
    EXPECT_EQ(record.lineText(35), u"-BLANK-"_s);
    EXPECT_EQ(record.shownText(35), QString());
    EXPECT_EQ(record.shownText(fields::kHost), QString()) << "endings have no such field";
}

TEST(RecordOfAFile, ShowsAWordThatTheScreenDoesNotKnowAsItStands)
{
    RecordLines lines = someEnding();
    const int finisher = endings().placeOf(fields::kAttackerFinisher);
    lines[finisher] = "Powerbomb";
    EXPECT_EQ(Record(bytesOf(lines), endings()).shownText(finisher), u"Powerbomb"_s);
}

TEST(RecordOfAFile, KeepsEveryOtherByteWhenALineIsReplaced)
{
    QByteArray bytes = bytesOf(someEnding());
    bytes.replace("Normal\r\n", "Normal\n").chop(2);
    const Record record(bytes, endings());
    ASSERT_TRUE(record.layout().isWhole());
    EXPECT_EQ(record.withLine(4, "DQ"), QByteArray(bytes).replace("Normal\n", "DQ\n"));
    EXPECT_EQ(record.withLine(35, "The end."), bytes.chopped(7) + "The end.");
}

TEST(RecordOfAFile, PutsAMissingLineWhereItBelongs)
{
    for (int field = 0; field < endings().fieldCount(); ++field) {
        RecordLines lines = someEnding();
        lines[4] = "Normal";
        const QByteArray whole = bytesOf(lines);
        const QByteArray line = lines.takeAt(field);
        const Record record(bytesOf(lines), endings());
        ASSERT_FALSE(record.layout().isWhole());
        const auto &found = record.layout().lineOfField;
        const auto missing = std::find(found.begin(), found.end(), -1);
        const QLatin1StringView name(endings().fields()[std::size_t(field)].field->name);
        if (name == QLatin1StringView(fields::kAttackerStable.name) ||
            name == QLatin1StringView(fields::kReceiverStable.name)) {
            // The finisher type before it is likelier to be missing: the screens leave it out.
            EXPECT_EQ(missing - found.begin(), field - 1);
            continue;
        }
        EXPECT_EQ(record.withLine(int(missing - found.begin()), line), whole) << field;
        EXPECT_EQ(record.lineText(int(missing - found.begin())), std::nullopt);
    }
}

TEST(RecordOfAFile, EndsTheLineBeforeAMissingLastOne)
{
    RecordLines lines = someEnding();
    lines.removeLast();
    const QByteArray bytes = bytesOf(lines).chopped(2);
    const Record record(bytes, endings());
    EXPECT_EQ(record.placeFor(35), 35);
    EXPECT_EQ(record.withLine(35, "-BLANK-"), bytes + "\r\n-BLANK-\r\n");
}

TEST(RecordOfAFile, KeepsItsLinesApartWhenOneIsEmptied)
{
    RecordLines lines = someEnding();
    lines[6] = "Rocco";
    lines[7] = "Vance";
    const QByteArray bytes = bytesOf(lines).replace("Rocco\r\nVance\r\n", "Rocco\rVance\r\n");
    const Record record(bytes, endings());
    ASSERT_TRUE(record.layout().isWhole());
    const QByteArray emptied = record.withLine(7, "");
    EXPECT_EQ(emptied, QByteArray(bytes).replace("Rocco\rVance\r\n", "Rocco\r\n\r\n"));
    EXPECT_EQ(Record(emptied, endings()).lines().size(), record.lines().size());
}

TEST(RecordOfAFile, KeepsALastLineWithoutAnEndWhenItIsEmptied)
{
    const QByteArray bytes = bytesOf(someEnding()).chopped(2);
    const Record record(bytes, endings());
    EXPECT_EQ(record.withLine(35, ""), bytes.chopped(7) + "\r\n");
}

TEST(RecordOfAFile, LosesOnlyTheLineThatIsTakenOut)
{
    RecordLines lines = someEnding();
    const QByteArray whole = bytesOf(lines);
    lines.insert(6, "What is this line doing here?");
    const Record record(bytesOf(lines), endings());
    ASSERT_EQ(record.layout().surplus, std::vector<int>{6});
    EXPECT_EQ(record.withoutLine(6), whole);
}

TEST(RecordOfAFile, WithoutAnyLineHasPlacesForAll)
{
    const Record record(QByteArray(), endings());
    EXPECT_EQ(record.layout().lineOfField, std::vector<int>(36, -1));
    EXPECT_EQ(record.withLine(3, "Yes"), "Yes\r\n");
}

} // namespace
} // namespace tarvold::records
