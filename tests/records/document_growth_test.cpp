// Files that grow while their documents have changes.

#include "disk/append.h"
#include "document_test.h"

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;

class DocumentGrowth : public DocumentTest
{
protected:
    /// Adds to the file as the screens of the editor do.
    static void append(const QByteArray &bytes)
    {
        ASSERT_TRUE(appendToFile(QString::fromLatin1(kFile), bytes));
    }
    static std::function<bool()> noQuestion()
    {
        return [] {
            ADD_FAILURE() << "it asks";
            return false;
        };
    }

    void doAnything(records::Random &random)
    {
        const int index = records::below(random, document.count());
        switch (records::below(random, 6)) {
        case 0:
            document.replace(index, talkShow("E" + QByteArray::number(steps())), u"Edit"_s);
            break;
        case 1:
            document.duplicate(index);
            break;
        case 2:
            document.move(index, 1);
            break;
        case 3:
            undo();
            break;
        case 4:
            redo();
            break;
        default:
            ASSERT_TRUE(document.save(noQuestion()));
        }
    }

    /// Without what a save took from the file.
    QByteArrayList hosts() const
    {
        QByteArrayList all;
        for (int index = 0; index < document.count(); ++index) {
            const QByteArray &bytes = document.entry(index).bytes;
            all << QByteArrayView(bytes).first(bytes.indexOf('\r')).toByteArray();
        }
        return all;
    }

    const QByteArray four = talkShow("Four");
    const QByteArray five = talkShow("Five");
};

TEST_F(DocumentGrowth, SaveKeepsBothTheChangesAndWhatWasAdded)
{
    document.replace(1, talkShow("New"), u"Edit"_s);
    document.remove({0});
    append(four);
    append(five);
    ASSERT_TRUE(document.save(noQuestion()));
    EXPECT_EQ(readBack(kFile), talkShow("New") + three + four + five);
    EXPECT_EQ(shown(), "New Three Four Five");
    EXPECT_FALSE(document.isChanged());
    EXPECT_TRUE(document.isFileUnchanged());
}

TEST_F(DocumentGrowth, WhatWasAddedIsNoChangeAndCantBeUndone)
{
    document.replace(2, talkShow("New"), u"Edit"_s);
    document.duplicate(2);
    undo();
    append(four);
    EXPECT_EQ(document.takeGrowth(), 1);
    EXPECT_EQ(document.takeGrowth(), 0);
    EXPECT_EQ(shown(), "One Two New:E Four");
    redo();
    EXPECT_EQ(shown(), "One Two New:E New:A Four");
    undo();
    undo();
    EXPECT_EQ(shown(), "One Two Three Four");
    EXPECT_FALSE(document.isChanged());
    EXPECT_TRUE(document.isFileUnchanged());
    document.move(3, -1);
    EXPECT_EQ(shown(), "One Two Four:M Three");
    ASSERT_TRUE(document.save(noQuestion()));
    EXPECT_EQ(readBack(kFile), one + two + four + three);
}

TEST_F(DocumentGrowth, GrowsAgainAfterASave)
{
    document.remove({2});
    ASSERT_TRUE(document.save(noQuestion()));
    append(four);
    EXPECT_EQ(document.takeGrowth(), 1);
    EXPECT_EQ(shown(), "One Two Four");
    undo();
    EXPECT_EQ(shown(), "One Two Three:A Four");
    ASSERT_TRUE(document.save(noQuestion()));
    EXPECT_EQ(readBack(kFile), one + two + three + four);
}

TEST_F(DocumentGrowth, AnyOtherChangeIsAskedFor)
{
    document.replace(1, talkShow("New"), u"Edit"_s);
    const QByteArrayList others = {one + two, two + one + three + four, four, QByteArray(),
                                   one + two + three.chopped(2) + four};
    for (const QByteArray &theirs : others) {
        writeFile(kFile, theirs);
        EXPECT_EQ(document.takeGrowth(), 0);
        const Result<void> saved = document.save([] { return false; });
        ASSERT_FALSE(saved);
        EXPECT_EQ(saved.error().outcome, FileOutcome::ChangedByAnother);
        EXPECT_EQ(readBack(kFile), theirs);
        EXPECT_EQ(shown(), "One New:E Three");
    }
}

TEST_F(DocumentGrowth, NoRecordRunsIntoTheOneBehindIt)
{
    // The last line of the file, now or after an undo, has no end, or one that would become
    // another with the empty line behind it.
    const QByteArray open = three.chopped(2);
    const QByteArray empty = talkShow("");
    ASSERT_TRUE(empty.startsWith("\r\n"));
    const struct
    {
        QByteArray last;
        QByteArray added;
    } cases[] = {{open, four}, {open, "\r\n" + four}, {open + "\r", empty}};
    for (const auto &[last, added] : cases) {
        writeFile(kFile, one + two + last);
        DocumentTest::open();
        document.remove({0});
        append(added);
        EXPECT_EQ(document.takeGrowth(), 0) << added.toStdString();
        EXPECT_FALSE(document.save({}));
        EXPECT_EQ(readBack(kFile), one + two + last + added);
    }
    writeFile(kFile, one + two + open);
    DocumentTest::open();
    document.duplicate(2);
    ASSERT_TRUE(document.save({})); // every line is ended now, but undo brings one without
    append(four);
    EXPECT_EQ(document.takeGrowth(), 0);
}

TEST_F(DocumentGrowth, AnEmptyFileGrows)
{
    writeFile(kFile, {});
    open();
    append(four);
    EXPECT_EQ(document.takeGrowth(), 1);
    EXPECT_EQ(shown(), "Four");
    EXPECT_TRUE(document.isFileUnchanged());
}

TEST_F(DocumentGrowth, AsksWhileAProgramIsInTheMiddleOfARecord)
{
    const QByteArray file = one + two + three;
    document.remove({1});
    append(four.first(40));
    EXPECT_EQ(document.takeGrowth(), 0);
    int asked = 0;
    EXPECT_FALSE(document.save([&asked] {
        ++asked;
        return false;
    }));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(readBack(kFile), file + four.first(40));
    append(four.sliced(40));
    ASSERT_TRUE(document.save(noQuestion()));
    EXPECT_EQ(readBack(kFile), one + three + four);
}

/// Loads a file with a record of a kind, then adds bytes to it. Returns how many records came.
int grownBy(const QByteArray &bytes, DataFileKind kind)
{
    const QString name = u"grown.tvd"_s;
    records::Random random(1);
    const auto &catalog = records::Catalog::of(kind);
    const QByteArray file =
        records::bytesOf(records::randomRecord(random, catalog, records::Writing::Usual));
    writeFile("grown.tvd", file);
    Document document;
    EXPECT_TRUE(document.open(name, kind));
    writeFile("grown.tvd", file + bytes);
    return document.takeGrowth();
}

TEST_F(DocumentGrowth, NoBeginningOfARecordIsTaken)
{
    records::Random random(1);
    for (const DataFileKindRow &row : kDataFileKinds) {
        const auto &catalog = records::Catalog::of(row.kind);
        for (int round = 0; round < 12; ++round) {
            const auto writing = records::Writing(round % 3);
            const records::RecordLines lines = records::randomRecord(random, catalog, writing);
            for (int count = 1; count < lines.size(); ++count) {
                const QByteArray begun = records::bytesOf(lines.first(count));
                EXPECT_EQ(grownBy(begun, row.kind), 0) << begun.toStdString();
            }
            EXPECT_EQ(grownBy(records::bytesOf(lines), row.kind), 1);
        }
    }
}

/// The fields of a kind that hold a finisher type.
std::vector<int> finisherTypesOf(const records::Catalog &catalog)
{
    std::vector<int> fields;
    for (int field = 0; field < catalog.fieldCount(); ++field) {
        if (catalog.fields().at(std::size_t(field)).field->coding == Coding::FinisherType) {
            fields.push_back(field);
        }
    }
    return fields;
}

/// The screens write no line for a finisher type that is in no list.
TEST_F(DocumentGrowth, ARecordWithoutAFinisherTypeIsTaken)
{
    records::Random random(1);
    int records = 0;
    int refused = 0;
    const auto tryRecord = [&](const DataFileKind kind, int field, records::Writing writing) {
        const auto &catalog = records::Catalog::of(kind);
        const auto whole = records::bytesOf(records::randomRecord(random, catalog, writing));
        records::RecordLines lines = records::randomRecord(random, catalog, writing);
        lines.removeAt(field);
        const QByteArray bytes = records::bytesOf(lines);
        refused += grownBy(bytes, kind) == 1 ? 0 : 1;
        refused += grownBy(bytes + whole, kind) == 2 ? 0 : 1;
        records += 2;
    };
    for (const DataFileKindRow &row : kDataFileKinds) {
        for (const int field : finisherTypesOf(records::Catalog::of(row.kind))) {
            for (int round = 0; round < 20; ++round) {
                tryRecord(row.kind, field, records::Writing(round % 2));
            }
        }
    }
    EXPECT_GT(records, 0);
    // With a stable "Any" and ten lines of commentary it may as well be a beginning.
    EXPECT_LE(refused, records / 100);
}

/// Random changes, undos, saves and appends; what comes of them is compared with a list of hosts
/// that follows the same rules, and what was appended must never be lost.
TEST_F(DocumentGrowth, LosesNothingWhateverWasDoneBefore)
{
    for (int seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE(seed);
        writeFile(kFile, one + two + three);
        open();
        records::Random random(static_cast<unsigned>(seed));
        QByteArrayList added;
        for (int step = 0; step < 40; ++step) {
            if (records::below(random, 4) == 0) {
                added << "A" + QByteArray::number(step);
                append(talkShow(added.back()));
                ASSERT_TRUE(records::below(random, 2) == 0 || document.takeGrowth() > 0);
            } else {
                doAnything(random);
            }
        }
        const QByteArray before = content();
        const Result<void> saved = document.save(noQuestion());
        ASSERT_TRUE(saved);
        EXPECT_TRUE(readBack(kFile).startsWith(before)) << "what was added since comes behind";
        EXPECT_EQ(readBack(kFile), content());
        EXPECT_FALSE(document.isChanged());
        while (document.undoStack().canUndo()) {
            undo();
        }
        QByteArrayList all = QByteArrayList({"One", "Two", "Three"}) + added;
        ASSERT_EQ(document.count(), all.size());
        EXPECT_EQ(hosts(), all);
    }
}

} // namespace
} // namespace tarvold::testing
